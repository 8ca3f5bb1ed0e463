cmake_minimum_required(VERSION 3.25)
# What the Windows program's file says of itself: whose it is, which Windows it asks for, how it is guarded; and nothing
# of the machine that built it.
#   cmake -DPROGRAM=<file> -DOBJDUMP=<program> -DROOT=<source folder> -DHOME=<folder> -P tests/program_file_test.cmake
execute_process(COMMAND ${OBJDUMP} -p ${PROGRAM} OUTPUT_VARIABLE header COMMAND_ERROR_IS_FATAL ANY)
foreach(line "MajorOSystemVersion[ \t]+6" "MinorOSystemVersion[ \t]+1" "MajorSubsystemVersion[ \t]+6"
        "MinorSubsystemVersion[ \t]+1" "Windows GUI" "DYNAMIC_BASE" "NX_COMPAT" "Time/Date[ \t]+Thu Jan  1 00:00:00 1970")
    if(NOT header MATCHES "${line}")
        message(FATAL_ERROR "not in the header: ${line}\n${header}")
    endif()
endforeach()

foreach(text "The Lorvane 3D authors" "Copyright .c. 2026 The Lorvane 3D authors" "Lorvane 3D")
    file(STRINGS ${PROGRAM} found ENCODING UTF-16LE REGEX "${text}")
    if(NOT found)
        message(FATAL_ERROR "not in the version: ${text}")
    endif()
endforeach()

file(STRINGS ${PROGRAM} said REGEX "stack smashing detected")
if(NOT said)
    message(FATAL_ERROR "nothing watches the stack")
endif()
foreach(place ${ROOT} ${HOME})
    if(place STREQUAL "/")
        continue()
    endif()
    string(REGEX REPLACE "([][+.*()^\\$?|])" "\\\\\\1" pattern "${place}/")
    file(STRINGS ${PROGRAM} found REGEX "${pattern}")
    if(found)
        message(FATAL_ERROR "names a place of the machine that built it: ${found}")
    endif()
endforeach()
