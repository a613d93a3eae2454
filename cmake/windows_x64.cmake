# Windows programs for 64 bit, made on Linux.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(tellurix_compilers x86_64-w64-mingw32)
set(tellurix_wine wine)
include(${CMAKE_CURRENT_LIST_DIR}/windows_compilers.cmake)
