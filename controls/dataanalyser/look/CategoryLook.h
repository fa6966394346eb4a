#pragma once

#include <cstdint>

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/model/RowOrder.h"

namespace controls::dataanalyser {

enum class PointShape : std::uint8_t { circle, square, triangle, diamond, star };
inline constexpr int pointShapeCount = 5;

/// How the rows of a group are told from those of the others.
struct CategoryLook {
    appearance::FamilyColors colors;
    PointShape shape = PointShape::circle;
};

/// The look of a data set's group (index into `Categories::names`; −1 for none). Elements' families have the
/// colours of the periodic table. Eighteen groups differ in colour, ninety in colour or shape; colours that
/// look alike with any kind of colour vision have different shapes.
CategoryLook categoryLook(const Categories& categories, int category);

}  // namespace controls::dataanalyser
