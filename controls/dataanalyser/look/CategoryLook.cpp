#include "controls/dataanalyser/look/CategoryLook.h"

#include <algorithm>
#include <array>
#include <optional>

namespace controls::dataanalyser {

namespace {

constexpr CategoryLook noCategory{{appearance::selected, appearance::accent}, PointShape::circle};

// In the order of the families. Families with the same shape have colours that everybody can tell apart.
constexpr std::array<PointShape, familyCount> familyShapes{
    PointShape::circle, PointShape::square,  PointShape::circle, PointShape::triangle, PointShape::diamond,
    PointShape::square, PointShape::diamond, PointShape::star,   PointShape::triangle, PointShape::star};

// Found by a search for the largest differences: at least 30 in CIELAB between any two, and at least 34
// between two of the same shape as colour-blind people see them.
constexpr std::array<QColor, 18> colors{{
    {0xBF, 0x6A, 0x00},
    {0x57, 0x29, 0x17},
    {0xD3, 0x75, 0x9C},
    {0x18, 0x4B, 0x30},
    {0xEF, 0x31, 0x7D},
    {0x95, 0x72, 0x74},
    {0x8F, 0x94, 0x5F},
    {0x66, 0x0F, 0x3F},
    {0xE4, 0x53, 0xC1},
    {0x84, 0x00, 0x84},
    {0x25, 0x2E, 0x64},
    {0x09, 0x4D, 0x61},
    {0x48, 0xA4, 0x24},
    {0x79, 0x5F, 0x00},
    {0x83, 0x00, 0x00},
    {0x09, 0x87, 0xFF},
    {0x3A, 0x99, 0xD2},
    {0x00, 0x30, 0xA3},
}};

std::optional<Family> familyNamed(std::string_view name) {
    for (int code = 1; code <= familyCount; ++code) {
        const auto family = familyOfCode(code);
        if (family && name == familyName(*family)) return family;
    }
    return std::nullopt;
}

QColor lightened(const QColor& color) {
    const auto channel = [](int value) { return (value + 255 * 3) / 4; };
    return {channel(color.red()), channel(color.green()), channel(color.blue())};
}

}  // namespace

CategoryLook categoryLook(const Categories& categories, int category) {
    if (category < 0) return noCategory;
    const auto place = static_cast<std::size_t>(category);
    const auto isFamily = [](const std::string& name) { return familyNamed(name).has_value(); };
    const bool areFamilies = std::ranges::all_of(categories.names, isFamily);
    if (const auto family = areFamilies ? familyNamed(categories.names[place]) : std::nullopt) {
        return {appearance::familyColors(*family), familyShapes[static_cast<std::size_t>(*family)]};
    }
    const QColor edge = colors[place % colors.size()];
    return {{lightened(edge), edge}, static_cast<PointShape>(category % pointShapeCount)};
}

}  // namespace controls::dataanalyser
