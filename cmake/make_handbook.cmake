# The handbook of one system, out of the pages for all:
#   cmake -DSYSTEM=<linux or windows> -DFROM=<folder> -DTO=<folder, emptied first> -P cmake/make_handbook.cmake
# A page that is of another system from end to end is left out.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/system_sections.cmake)

file(GLOB names RELATIVE ${FROM} ${FROM}/*.html ${FROM}/*.hhc ${FROM}/*.hhk)
list(APPEND names handbook.hhp)  # the last to be written: when it is there, all is
foreach(name ${names})
    file(READ ${FROM}/${name} text)
    lv_sections_of(${SYSTEM} "${text}" ${name} kept_${name})
endforeach()

file(REMOVE_RECURSE ${TO})
file(GLOB pictures ${FROM}/*.png)
file(COPY ${pictures} DESTINATION ${TO})
foreach(name ${names})
    if(NOT kept_${name} STREQUAL "")
        file(WRITE ${TO}/${name} "${kept_${name}}")
    endif()
endforeach()
