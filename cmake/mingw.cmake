# What both widths have in common.
set(CMAKE_CXX_COMPILER ${MUR_WINDOWS_TOOLS}-g++-posix)
set(CMAKE_C_COMPILER ${MUR_WINDOWS_TOOLS}-gcc-posix)
set(CMAKE_RC_COMPILER ${MUR_WINDOWS_TOOLS}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${MUR_WINDOWS_TOOLS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Programs and libraries bring the compiler's run-time along.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
# A broken stack ends the program before it returns, and processors check where calls may land.
set(CMAKE_CXX_FLAGS_INIT "${MUR_WINDOWS_FLAGS} -fstack-protector-strong -fcf-protection")
