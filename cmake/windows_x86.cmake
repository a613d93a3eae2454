# Windows programs for 32 bit, made on Linux.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(tellurix_compilers i686-w64-mingw32)
set(tellurix_wine wine_x86)
include(${CMAKE_CURRENT_LIST_DIR}/windows_compilers.cmake)
