# A second compiler's opinion on every source of the Windows build: clang reads them (-fsyntax-only), one stamp each,
# so that only what changed is read again.

find_program(ORVFC_CLANG NAMES clang++ clang++-14 REQUIRED)

set(flags --target=x86_64-w64-mingw32 -std=c++20 -fsyntax-only -Wall -Wextra -Wno-unknown-pragmas
    -Wno-unused-command-line-argument
    # Create of a derived window class hides the base's, as MFC has it.
    -Wno-overloaded-virtual
    # The foundation brings WinMain, which the system's headers declare as the program's own.
    -Wno-dll-attribute-on-redeclaration
    # Host sources say "virtual" where the library says "override".
    -Wno-inconsistent-missing-override -Werror -D_DEBUG -DWINVER=0x0601 -D_WIN32_WINNT=0x0601 -I${PROJECT_SOURCE_DIR}
    -I${PROJECT_SOURCE_DIR}/afx -I${PROJECT_SOURCE_DIR}/tests -isystem /usr/src/googletest/googletest/include)

# clang brings no C++ library for this target: it reads the cross compiler's.
foreach(dir IN LISTS CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES)
  if(dir MATCHES "c\\+\\+")
    list(APPEND flags -isystem ${dir})
  endif()
endforeach()

function(orv_check_target target)
  get_target_property(sources ${target} SOURCES)
  get_target_property(dir ${target} SOURCE_DIR)
  get_target_property(definitions ${target} COMPILE_DEFINITIONS)
  set(define)
  foreach(definition IN LISTS definitions)
    if(definition AND NOT definition MATCHES "^\\$")
      list(APPEND define -D${definition})
    endif()
  endforeach()
  foreach(source IN LISTS sources)
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${dir} NORMALIZE OUTPUT_VARIABLE path)
    if(NOT path MATCHES "\\.cpp$" OR NOT path MATCHES "^${PROJECT_SOURCE_DIR}/")
      continue()
    endif()
    file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${path})
    string(REPLACE "/" "_" name ${name})
    set(stamp ${CMAKE_BINARY_DIR}/syntax/${target}-${name}.ok)
    add_custom_command(
      OUTPUT ${stamp}
      COMMAND ${ORVFC_CLANG} ${flags} ${define} -MD -MF ${stamp}.d -MT ${stamp} ${path}
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPENDS ${path}
      DEPFILE ${stamp}.d
      COMMENT "Reading ${name} with clang"
      VERBATIM)
    set_property(GLOBAL APPEND PROPERTY ORV_SYNTAX_STAMPS ${stamp})
  endforeach()
endfunction()

file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/syntax)

function(orv_check_folder folder)
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "LIBRARY$|EXECUTABLE" AND NOT type STREQUAL "INTERFACE_LIBRARY")
      orv_check_target(${target})
    endif()
  endforeach()
  get_property(subfolders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS subfolders)
    if(subfolder MATCHES "^${PROJECT_SOURCE_DIR}/")
      orv_check_folder(${subfolder})
    endif()
  endforeach()
endfunction()

orv_check_folder(${PROJECT_SOURCE_DIR})

# Each public header is read alone: it can be included first. Those of the foundation that end in an underscore are
# pieces of the others.
set(alone ${ORV_PUBLIC_HEADERS} ${ORV_FOUNDATION_HEADERS})
list(FILTER alone EXCLUDE REGEX "_\\.h$")
foreach(header IN LISTS alone)
  string(REPLACE "/" "_" name ${header})
  set(stamp ${CMAKE_BINARY_DIR}/syntax/${name}.ok)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${ORVFC_CLANG} ${flags} -Wno-pragma-once-outside-header -x c++ -MD -MF ${stamp}.d -MT ${stamp}
            ${PROJECT_SOURCE_DIR}/${header}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${PROJECT_SOURCE_DIR}/${header}
    DEPFILE ${stamp}.d
    COMMENT "Reading ${header} alone with clang"
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY ORV_SYNTAX_STAMPS ${stamp})
endforeach()

get_property(stamps GLOBAL PROPERTY ORV_SYNTAX_STAMPS)
add_custom_target(syntax_check ALL DEPENDS ${stamps})
