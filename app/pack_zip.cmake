# Packs a folder's content into a zip, the same bytes from the same files: in the order of their names, with the date of
# SOURCE_DATE_EPOCH, in seconds since 1970, or the first that a zip can hold.
#   [SOURCE_DATE_EPOCH=...] cmake -DFOLDER=<folder> -DZIP=<file> -P app/pack_zip.cmake
set(date "1980-01-01 00:00:00 UTC")
if(NOT "$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    string(TIMESTAMP date "%Y-%m-%d %H:%M:%S UTC" UTC)
endif()
file(GLOB_RECURSE files RELATIVE ${FOLDER} ${FOLDER}/*)
list(SORT files)
list(JOIN files "\n" list)
file(WRITE ${ZIP}.files "${list}\n")
execute_process(COMMAND ${CMAKE_COMMAND} -E tar c ${ZIP} --format=zip "--mtime=${date}" --files-from=${ZIP}.files
    WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE ${ZIP}.files)
