# The program's icon, manifest and version, as lv_resources.
find_program(LV_ICOTOOL icotool REQUIRED)

set(LV_ICON ${CMAKE_CURRENT_BINARY_DIR}/lorvane3d.ico)
set(drawing ${CMAKE_SOURCE_DIR}/assets/lorvane3d.svg)
set(render "")
set(sizes "")
foreach(height 16 24 32 48 64 256)
    set(png ${CMAKE_CURRENT_BINARY_DIR}/icon_${height}.png)
    list(APPEND render COMMAND ${LV_RSVG} -h ${height} -a -f png -o ${png} ${drawing})
    # The largest stays compressed; Windows before Vista would not have read that.
    list(APPEND sizes $<IF:$<EQUAL:${height},256>,--raw=${png},${png}>)
endforeach()
add_custom_command(
    OUTPUT ${LV_ICON}
    ${render}
    COMMAND ${LV_ICOTOOL} --create --output=${LV_ICON} ${sizes}
    DEPENDS ${drawing}
    COMMENT "Drawing the program's icon")

# 1.06.0112 is 1,6,112,0 there.
string(REGEX REPLACE "(^|\\.)0+([0-9])" "\\1\\2" LV_FILE_VERSION ${PROJECT_VERSION})
string(REPLACE "." "," LV_FILE_VERSION "${LV_FILE_VERSION},0")
configure_file(lorvane3d.rc.in ${CMAKE_CURRENT_BINARY_DIR}/lorvane3d.rc @ONLY)

# Apart from the sources, whose flags the resource compiler does not know.
add_library(lv_resources OBJECT ${CMAKE_CURRENT_BINARY_DIR}/lorvane3d.rc ${LV_ICON})
enable_language(RC)
target_include_directories(lv_resources PRIVATE ${wxWidgets_INCLUDE_DIRS})
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/lorvane3d.rc PROPERTIES
    OBJECT_DEPENDS "${LV_ICON};${CMAKE_CURRENT_SOURCE_DIR}/lorvane3d.manifest")
