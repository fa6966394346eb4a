# The tables of elements and isotopes are made of open data and of ours, by the program elementc.
find_file(BODR_ELEMENTS elements.xml REQUIRED PATHS /usr/share/bodr /usr/local/share/bodr)
find_file(BODR_ISOTOPES isotopes.xml REQUIRED PATHS /usr/share/bodr /usr/local/share/bodr)

# Compiles the table KIND of a list, our table of elements and corrections.
function(compile_table KIND LIST CORRECTIONS OUTPUT)
    set(DATA ${CMAKE_SOURCE_DIR}/controls/elements/data)
    set(SOURCES ${LIST} ${DATA}/elements.tsv ${DATA}/${CORRECTIONS})
    add_custom_command(OUTPUT ${OUTPUT}
        COMMAND elementc ${KIND} ${SOURCES} ${OUTPUT}
        DEPENDS elementc ${SOURCES}
        VERBATIM)
endfunction()

# Sets RESULT to the sources of both tables, which are made in the current build folder.
function(compile_element_tables RESULT)
    set(ELEMENTS ${CMAKE_CURRENT_BINARY_DIR}/ElementTable.cpp)
    set(ISOTOPES ${CMAKE_CURRENT_BINARY_DIR}/IsotopeTable.cpp)
    compile_table(elements ${BODR_ELEMENTS} corrections.tsv ${ELEMENTS})
    compile_table(isotopes ${BODR_ISOTOPES} isotope-corrections.tsv ${ISOTOPES})
    set(${RESULT} ${ELEMENTS} ${ISOTOPES} PARENT_SCOPE)
endfunction()
