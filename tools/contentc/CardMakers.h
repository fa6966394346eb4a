#pragma once

#include <vector>

#include "tools/contentc/markdown/BodyContext.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Makes the cards of elements, which are named by symbol or Greek name.
CardMaker elementCardMaker();

/// Makes the cards of compounds, from the data set `compounds` if there is one among the files.
CardMaker compoundCardMaker(const std::vector<SourceFile>& dataSets, Diagnostics& diagnostics);

}  // namespace contentc
