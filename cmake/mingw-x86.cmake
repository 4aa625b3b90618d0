# Cross-builds for 32-bit Windows with Debian's mingw-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(MUR_WINDOWS_TOOLS i686-w64-mingw32)
# Doubles in SSE registers have no excess precision; hosts may call with a stack that is aligned to 4 only.
set(MUR_WINDOWS_FLAGS "-msse2 -mfpmath=sse -mstackrealign")
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
