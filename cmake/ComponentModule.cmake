# A component: the loadable module NAME.ocx, made of the current folder's room, its Module.cpp, which states the component,
# and controls/common/Module.cpp, which holds the two exports and the version of the file.
function(add_component_module NAME)
    this_room(ROOM PARTS)
    add_library(${NAME} MODULE Module.cpp ${CMAKE_SOURCE_DIR}/controls/common/Module.cpp ${ARGN})
    use_rooms(${NAME} PRIVATE)
    target_link_libraries(${NAME} PRIVATE ${PARTS} Qt6::Widgets)
    use_precompiled_headers(${NAME})
    target_link_options(${NAME} PRIVATE -Wl,--exclude-libs,ALL)
    set_target_properties(${NAME} PROPERTIES
        PREFIX "" SUFFIX ".ocx" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/ActiveX)
endfunction()
