# The Windows program, 64 bit unless windows32_toolchain.cmake says otherwise, cross-built by MinGW-w64 on the libraries
# of scripts/windows_libraries. Everything is linked statically: one file to ship.
set(CMAKE_SYSTEM_NAME Windows)
if(NOT CMAKE_SYSTEM_PROCESSOR)
    set(CMAKE_SYSTEM_PROCESSOR x86_64)
endif()

set(host ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_C_COMPILER ${host}-gcc-posix)
set(CMAKE_CXX_COMPILER ${host}-g++-posix)
set(CMAKE_RC_COMPILER ${host}-windres)

get_filename_component(root ${CMAKE_CURRENT_LIST_DIR}/.. ABSOLUTE)
# What the libraries say of themselves holds their real place.
get_filename_component(libraries ${root}/build/windows${bits}_libraries REALPATH)
set(CMAKE_FIND_ROOT_PATH ${libraries} /usr/${host})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(wxWidgets_CONFIG_EXECUTABLE ${libraries}/bin/wx-config CACHE FILEPATH "")

set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--gc-sections")
# What is built runs under Wine: CTest starts the tests through this.
set(CMAKE_CROSSCOMPILING_EMULATOR ${root}/scripts/under_wine)
