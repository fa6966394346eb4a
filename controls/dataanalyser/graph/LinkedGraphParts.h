#pragma once

#include "controls/dataanalyser/look/GraphParts.h"

namespace controls::dataanalyser {

/// The functions that draw graphs, for a program or library that links this room.
const GraphParts* linkedGraphParts();

}  // namespace controls::dataanalyser
