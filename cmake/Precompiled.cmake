# Headers that are read once instead of with each joined file, where most of the time went: those of the standard
# library for all, and Qt's for what shows them. A file still includes all that it uses (tools/lint alone).
set(STANDARD_HEADERS
    <algorithm> <array> <chrono> <cmath> <cstdint> <filesystem> <fstream> <functional> <map> <memory> <optional> <set>
    <span> <string> <string_view> <utility> <variant> <vector>)
set(QT_HEADERS
    <QApplication> <QImage> <QMouseEvent> <QPainter> <QPointer> <QString> <QTimer> <QWidget>)
# Precompiled headers serve only files of the same flags, so programs are compiled like libraries.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})

# Two rooms of the ground precompile them; TARGET uses what they have made.
function(use_precompiled_headers TARGET)
    get_target_property(LIBRARIES ${TARGET} LINK_LIBRARIES)
    if("${TARGET}" STREQUAL "platform_text")
        target_precompile_headers(${TARGET} PRIVATE ${STANDARD_HEADERS})
    elseif("${TARGET}" STREQUAL "platform_qt")
        target_precompile_headers(${TARGET} PRIVATE ${STANDARD_HEADERS} ${QT_HEADERS})
    elseif(LIBRARIES MATCHES "Qt6::(Widgets|WebEngineWidgets|Charts|PrintSupport)")
        target_precompile_headers(${TARGET} REUSE_FROM platform_qt)
    else()
        target_precompile_headers(${TARGET} REUSE_FROM platform_text)
    endif()
endfunction()
