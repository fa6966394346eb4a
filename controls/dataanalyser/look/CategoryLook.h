#pragma once

#include <cstdint>

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/model/RowOrder.h"

namespace controls::dataanalyser {

/// The shapes of the points of a graph.
enum class PointShape : std::uint8_t { circle, square, triangle, diamond, star };
inline constexpr int pointShapeCount = 5;

/// The colours and the shape of points by which the rows of a category are recognised.
struct CategoryLook {
    appearance::GroupColors colors;
    PointShape shape = PointShape::circle;
};

/// The look of a category, an index into `Categories::names`, −1 for none. Families of elements have the
/// colours of the periodic table. Eighteen categories differ in colour, ninety in colour or shape. Colours
/// that look alike to colour-blind people have different shapes.
CategoryLook categoryLook(const Categories& categories, int category);

}  // namespace controls::dataanalyser
