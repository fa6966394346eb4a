#include "controls/periodic/model/ElementKinds.h"

#include <array>

#include "platform/text/GreekLiteral.h"

namespace controls::periodic {

namespace {

using namespace platform::literals;

constexpr std::array<std::string_view, 3> characterNames{"Μέταλλα"_gr, "Μεταλλοειδή"_gr, "Αμέταλλα"_gr};
constexpr std::array<std::string_view, 4> matterNames{"Στερεό"_gr, "Υγρό"_gr, "Αέριο"_gr,
                                                      "Δεν είναι γνωστό"_gr};

}  // namespace

Character characterOf(Family family) {
    switch (family) {
        case Family::metalloid:
            return Character::metalloid;
        case Family::nonmetal:
        case Family::halogen:
        case Family::nobleGas:
            return Character::nonmetal;
        default:
            return Character::metal;
    }
}

int kindCount(TableView view) {
    switch (view) {
        case TableView::families:
            return familyCount;
        case TableView::metals:
            return static_cast<int>(characterNames.size());
        case TableView::matter:
            return static_cast<int>(matterNames.size());
        default:
            return 0;
    }
}

int kindOf(const Element& element, TableView view, double kelvin) {
    switch (view) {
        case TableView::families:
            return familyCode(element.family);
        case TableView::metals:
            return static_cast<int>(characterOf(element.family)) + 1;
        case TableView::matter:
            return static_cast<int>(element.matterAt(kelvin)) + 1;
        default:
            return 0;
    }
}

std::string_view kindName(TableView view, int kind) {
    if (kind < 1 || kind > kindCount(view)) return {};
    const auto index = static_cast<std::size_t>(kind) - 1;
    if (view == TableView::families) {
        const auto family = familyOfCode(kind);
        return family ? familyName(*family) : std::string_view();
    }
    return view == TableView::metals ? characterNames[index] : matterNames[index];
}

}  // namespace controls::periodic
