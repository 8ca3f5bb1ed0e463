# Runs NSIS over installer.nsi, with the list of what it installs, which its uninstaller is to remove.
file(GLOB_RECURSE files LIST_DIRECTORIES true RELATIVE ${STAGE} ${STAGE}/*)
list(SORT files)
list(REVERSE files)  # what a directory holds goes before it
set(remove "")
set(bytes 0)
foreach(file ${files})
    string(REPLACE "/" "\\" name ${file})
    if(IS_DIRECTORY ${STAGE}/${file})
        string(APPEND remove "RMDir \"$INSTDIR\\${name}\"\n")
    else()
        string(APPEND remove "Delete \"$INSTDIR\\${name}\"\n")
        file(SIZE ${STAGE}/${file} size)
        math(EXPR bytes "${bytes} + ${size}")
    endif()
endforeach()
math(EXPR kilobytes "${bytes} / 1024")
file(WRITE ${OUTPUT}.files.nsh "${remove}")
# NSIS takes the date for its own file from there.
if("$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    set(ENV{SOURCE_DATE_EPOCH} 315532800)
endif()
execute_process(COMMAND ${MAKENSIS} -V2 -WX -NOCD -DSTAGE=${STAGE} -DFILES=${OUTPUT}.files.nsh -DVERSION=${VERSION}
    -DFILE_VERSION=${FILE_VERSION} -DKILOBYTES=${kilobytes} -DICON=${ICON} -DOUTPUT=${OUTPUT} -DTARGET=${TARGET} ${SCRIPT}
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE ${OUTPUT}.files.nsh)
