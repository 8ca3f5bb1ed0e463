# What `cmake --install` lays down on Linux, below any prefix: component `program` is the program with what it finds in
# its own directory, in lib/lorvane3d, and a link to it in bin; packaging/ adds component `desktop`.
set(home lib/lorvane3d)
foreach(program lorvane3d lorvane3d-window lorvane3d-pause lorvane3d-watch)
    # Every address of a library is looked up at the start, and the table of them cannot be written afterwards.
    target_link_options(${program} PRIVATE -Wl,-z,relro,-z,now)
endforeach()
install(TARGETS lorvane3d lorvane3d-window lorvane3d-pause lorvane3d-watch DESTINATION ${home} COMPONENT program)
install(FILES ${CMAKE_SOURCE_DIR}/assets/lv_666.hid ${CMAKE_SOURCE_DIR}/assets/lv_666_q2.hid DESTINATION ${home}
    COMPONENT program)
install(DIRECTORY ${pages}/ DESTINATION ${home}/handbook COMPONENT program)

set(link ${CMAKE_CURRENT_BINARY_DIR}/bin/lorvane3d)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/bin)
file(CREATE_LINK ../${home}/lorvane3d ${link} SYMBOLIC)
install(FILES ${link} DESTINATION bin COMPONENT program)
