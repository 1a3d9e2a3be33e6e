# Settings that every target of this build shares.
#
#   orv_options        interface target: standard, warnings, code page, sanitizers
#   orv_version(...)   gives a DLL or program its version resource
#   orv_gtest()        makes GTest::gtest_main available, built with this build's own compiler

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Programs and DLLs lie side by side, as Windows looks for them.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_SHARED_LIBRARY_PREFIX "")

add_library(orv_options INTERFACE)
target_include_directories(orv_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(orv_options INTERFACE $<$<CONFIG:Debug>:_DEBUG>)

if(MSVC)
  target_compile_options(orv_options INTERFACE /W4 /utf-8 /execution-charset:.936)
else()
  target_compile_options(
    orv_options INTERFACE
    -Wall -Wextra -Wno-unknown-pragmas
    # A CString handed through "..." compiles silently and prints garbage.
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Werror=conditionally-supported>
    # Narrow literals are code page 936 text. Plain GBK cannot encode the C++ library's own headers.
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fexec-charset=GB18030>)
endif()

if(WIN32 AND MINGW)
  target_compile_definitions(orv_options INTERFACE WINVER=0x0601 _WIN32_WINNT=0x0601)
  # The toolchain's runtime DLLs stand beside everything that is built or installed.
  set(ORV_RUNTIME_DLLS)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
      find_file(path_${dll} ${dll} PATHS ${CMAKE_FIND_ROOT_PATH} PATH_SUFFIXES bin lib NO_CMAKE_FIND_ROOT_PATH)
      set(path ${path_${dll}})
    endif()
    if(NOT EXISTS "${path}")
      message(FATAL_ERROR "The toolchain's runtime DLL ${dll} was not found")
    endif()
    list(APPEND ORV_RUNTIME_DLLS ${path})
  endforeach()
  file(COPY ${ORV_RUNTIME_DLLS} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()

if(ORVFC_SANITIZE AND NOT WIN32)
  # Libraries report what they cover to the fuzzer; the programs bring its main.
  add_compile_options($<$<BOOL:${ORVFC_FUZZ}>:-fsanitize=fuzzer-no-link>)
  target_compile_options(orv_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                               -fno-omit-frame-pointer)
  target_link_options(orv_options INTERFACE -fsanitize=address,undefined)
endif()

function(orv_version target description)
  if(NOT WIN32)
    return()
  endif()
  get_target_property(type ${target} TYPE)
  set(ORV_FILETYPE 2)
  set(ORV_SUFFIX .dll)
  if(type STREQUAL EXECUTABLE)
    set(ORV_FILETYPE 1)
    set(ORV_SUFFIX .exe)
  endif()
  get_target_property(name ${target} OUTPUT_NAME)
  if(NOT name)
    set(name ${target})
  endif()
  set(ORV_NAME ${name})
  set(ORV_DESCRIPTION "${description}")
  string(REPLACE "." "," ORV_VERSION_COMMAS "${PROJECT_VERSION}.0")
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}-version.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}-version.rc)
endfunction()

function(orv_gtest)
  if(TARGET GTest::gtest_main)
    return()
  endif()
  set(sources /usr/src/googletest CACHE PATH "GoogleTest's source tree")
  if(NOT EXISTS ${sources}/CMakeLists.txt)
    message(FATAL_ERROR "GoogleTest's sources are missing: install the package googletest")
  endif()
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  # winpthread would come in as a second threading model beside the window system's.
  set(gtest_disable_pthreads ${WIN32} CACHE BOOL "" FORCE)
  add_subdirectory(${sources} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endfunction()
