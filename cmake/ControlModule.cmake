# A component: NAME_parts is a static library of the given sources, which tests link, and NAME the loadable module
# NAME.ocx made of it and Module.cpp, which holds the two exports and the version text.
function(add_control_module NAME)
    add_library(${NAME}_parts STATIC ${ARGN})
    target_link_libraries(${NAME}_parts PUBLIC controls_common)

    add_library(${NAME} MODULE Module.cpp)
    target_link_libraries(${NAME} PRIVATE ${NAME}_parts)
    target_link_options(${NAME} PRIVATE -Wl,--exclude-libs,ALL)
    set_target_properties(${NAME} PROPERTIES
        PREFIX "" SUFFIX ".ocx" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/ActiveX)

    set_target_properties(${NAME} ${NAME}_parts PROPERTIES CXX_VISIBILITY_PRESET hidden)
endfunction()
