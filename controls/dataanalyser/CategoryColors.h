#pragma once

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/RowOrder.h"

namespace controls::dataanalyser {

/// The colours of a data set's group (index into `Categories::names`; −1 for none): an element's family has
/// those of the periodic table.
appearance::FamilyColors categoryColors(const Categories& categories, int category);

}  // namespace controls::dataanalyser
