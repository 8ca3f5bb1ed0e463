# The Windows program of 32 bit, on the libraries of `scripts/windows_libraries 32`.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(bits 32)
include(${CMAKE_CURRENT_LIST_DIR}/windows_toolchain.cmake)
