#pragma once

#include <QSize>

#include "controls/dataanalyser/look/GraphParts.h"
#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

/// Puts all listed rows on the clipboard, as text and as an HTML table.
void copyAllRows(const Analyser& analyser);

/// Puts the selected rows on the clipboard in the same way. Without any, the clipboard stays as it is.
void copySelectedRows(const Analyser& analyser);

/// Puts the graph on the clipboard as a picture; `size` is the size of the graph on the screen.
void copyGraphPicture(Analyser& analyser, const GraphParts& graphs, QSize size);

}  // namespace controls::dataanalyser
