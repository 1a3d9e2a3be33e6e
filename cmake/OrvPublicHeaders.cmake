# Which headers are public: those that a host can reach from the ones it includes. Everything else is internal and is
# not installed. The lists are made from the include lines, so that nobody keeps them by hand.
#
#   ORV_PUBLIC_HEADERS   of orvfc/ and orvmathfunc/, relative to the source tree
#   ORV_FOUNDATION_HEADERS   of afx/, likewise

# Adds header and all it includes from the tree to the list named by out.
function(orv_reach header out)
  if(header IN_LIST ${out})
    return()
  endif()
  list(APPEND ${out} ${header})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${header})
  cmake_path(GET header PARENT_PATH folder)
  file(STRINGS ${PROJECT_SOURCE_DIR}/${header} lines REGEX "^#include [<\"]")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^#include [<\"]([^>\"]+)[>\"].*" "\\1" name "${line}")
    if(NOT name MATCHES "\\.h$" AND header MATCHES "^orvfc/")
      message(FATAL_ERROR "${header} is public and includes a header of the C++ library: <${name}>")
    endif()
    foreach(candidate ${folder}/${name} ${name} afx/${name})
      if(EXISTS ${PROJECT_SOURCE_DIR}/${candidate})
        cmake_path(NORMAL_PATH candidate)
        orv_reach(${candidate} ${out})
        break()
      endif()
    endforeach()
  endforeach()
  set(${out} "${${out}}" PARENT_SCOPE)
endfunction()

set(reached)
orv_reach(orvfc/ORVFC.h reached)
orv_reach(orvmathfunc/orvmathfunc.h reached)
file(GLOB entries RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/afx/afx*.h)
foreach(entry IN LISTS entries)
  orv_reach(${entry} reached)
endforeach()

set(ORV_PUBLIC_HEADERS ${reached})
list(FILTER ORV_PUBLIC_HEADERS EXCLUDE REGEX "^afx/")
set(ORV_FOUNDATION_HEADERS ${reached})
list(FILTER ORV_FOUNDATION_HEADERS INCLUDE REGEX "^afx/")
