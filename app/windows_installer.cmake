# The installer, lorvane3d-<version>-setup.exe, of what the zip holds: target `installer`.
find_program(LV_MAKENSIS makensis REQUIRED)
set(setup ${CMAKE_BINARY_DIR}/lorvane3d-${PROJECT_VERSION}-setup${edition}.exe)
set(target $<IF:$<STREQUAL:${edition},32>,x86,amd64>-unicode)
string(REPLACE "," "." file_version ${LV_FILE_VERSION})
add_custom_command(
    OUTPUT ${setup}
    COMMAND ${CMAKE_COMMAND} "-DSTAGE=${stage}/${folder}" -DSCRIPT=${CMAKE_CURRENT_SOURCE_DIR}/installer.nsi
            -DMAKENSIS=${LV_MAKENSIS} -DVERSION=${PROJECT_VERSION} -DFILE_VERSION=${file_version} -DICON=${LV_ICON}
            -DOUTPUT=${setup} -DTARGET=${target} -P ${CMAKE_CURRENT_SOURCE_DIR}/make_installer.cmake
    DEPENDS ${zip} installer.nsi make_installer.cmake
    COMMENT "Making the Windows installer"
    VERBATIM)
add_custom_target(installer ALL DEPENDS ${setup})
