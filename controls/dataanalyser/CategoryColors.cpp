#include "controls/dataanalyser/CategoryColors.h"

namespace controls::dataanalyser {

namespace {

constexpr appearance::FamilyColors noGroup{appearance::selected, appearance::accent};

}  // namespace

appearance::FamilyColors categoryColors(const Categories& categories, int category) {
    if (category < 0) return noGroup;
    const std::string& name = categories.names[static_cast<std::size_t>(category)];
    for (int code = 1; code <= familyCount; ++code) {
        if (name == familyName(*familyOfCode(code))) return appearance::familyColors(*familyOfCode(code));
    }
    return appearance::familyColors(*familyOfCode(category % familyCount + 1));
}

}  // namespace controls::dataanalyser
