# Cross-compiling for 64-bit Windows with MinGW-w64, under Debian's compiler names or plain MinGW's.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triplet x86_64-w64-mingw32)
find_program(CMAKE_C_COMPILER NAMES ${triplet}-gcc-posix ${triplet}-gcc REQUIRED)
find_program(CMAKE_CXX_COMPILER NAMES ${triplet}-g++-posix ${triplet}-g++ REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES ${triplet}-windres REQUIRED)
# Resource scripts are UTF-8.
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")

set(CMAKE_FIND_ROOT_PATH /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# BOTH, or find_package(ORVFC) would not look into CMAKE_PREFIX_PATH.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# Tests are Windows programs: the project's front door runs them.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../dev;exec")
