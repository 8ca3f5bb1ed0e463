# What is handed out: lorvane3d-<version>-windows.zip, one folder with the program and its data. Target `zip` makes it,
# and unpacks it to shipped/, where the tests take the program from.
set(folder "Lorvane 3D")
set(edition "")
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(edition 32)
endif()
set(stage ${CMAKE_CURRENT_BINARY_DIR}/stage)
set(shipped ${CMAKE_BINARY_DIR}/shipped)
set(zip ${CMAKE_BINARY_DIR}/lorvane3d-${PROJECT_VERSION}-windows${edition}.zip)

install(TARGETS lorvane3d DESTINATION "${folder}" COMPONENT zip)
install(FILES ${CMAKE_SOURCE_DIR}/assets/lv_666.hid ${CMAKE_SOURCE_DIR}/assets/lv_666_q2.hid DESTINATION "${folder}"
    COMPONENT zip)
install(DIRECTORY ${pages}/ DESTINATION "${folder}/handbook" COMPONENT zip)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION "${folder}" RENAME LICENSE.txt COMPONENT zip)
# The licences of what is linked in, as Debian's packages bring them.
string(REPLACE _ - processor ${CMAKE_SYSTEM_PROCESSOR})
foreach(package libwxgtk3.2-dev libpng16-16 libz-mingw-w64-dev mingw-w64-common g++-mingw-w64-${processor}-posix)
    install(FILES /usr/share/doc/${package}/copyright DESTINATION "${folder}/licences" RENAME ${package}.txt
        COMPONENT zip)
endforeach()

set(data ${pages}/handbook.hhp ${CMAKE_SOURCE_DIR}/assets/lv_666.hid ${CMAKE_SOURCE_DIR}/assets/lv_666_q2.hid
    ${CMAKE_SOURCE_DIR}/LICENSE)
add_custom_command(
    OUTPUT ${zip}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${stage} ${shipped} ${zip}
    COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --component zip --prefix ${stage}
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${stage} -DZIP=${zip} -P ${CMAKE_CURRENT_SOURCE_DIR}/pack_zip.cmake
    COMMAND ${CMAKE_COMMAND} -E make_directory ${shipped}
    COMMAND ${CMAKE_COMMAND} -E chdir ${shipped} ${CMAKE_COMMAND} -E tar x ${zip}
    DEPENDS lorvane3d ${data} pack_zip.cmake
    COMMENT "Packing the Windows program"
    VERBATIM)
add_custom_target(zip ALL DEPENDS ${zip})
