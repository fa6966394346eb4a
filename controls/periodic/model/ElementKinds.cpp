#include "controls/periodic/model/ElementKinds.h"

#include <array>

#include "platform/text/GreekLiteral.h"

namespace controls::periodic {

namespace {

using namespace platform::literals;

constexpr std::array<std::string_view, 3> characterNames{"Μέταλλα"_gr, "Μεταλλοειδή"_gr, "Αμέταλλα"_gr};
constexpr std::array<std::string_view, 4> matterNames{"Στερεό"_gr, "Υγρό"_gr, "Αέριο"_gr,
                                                      "Δεν είναι γνωστό"_gr};
constexpr std::array<std::string_view, 4> blockNames{"Τομέας s"_gr, "Τομέας p"_gr, "Τομέας d"_gr,
                                                     "Τομέας f"_gr};
// With the names of schoolbooks.
constexpr std::array<std::string_view, kindWithoutGroup> groupNames{
    "1 · IA"_gr,   "2 · IIA"_gr,   "3 · IIIB"_gr,   "4 · IVB"_gr,   "5 · VB"_gr,
    "6 · VIB"_gr,  "7 · VIIB"_gr,  "8 · VIIIB"_gr,  "9 · VIIIB"_gr, "10 · VIIIB"_gr,
    "11 · IB"_gr,  "12 · IIB"_gr,  "13 · IIIA"_gr,  "14 · IVA"_gr,  "15 · VA"_gr,
    "16 · VIA"_gr, "17 · VIIA"_gr, "18 · VIIIA"_gr, "καμία"_gr};

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
        case TableView::blocks:
            return static_cast<int>(blockNames.size());
        case TableView::groups:
            return kindWithoutGroup;
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
        case TableView::blocks:
            return static_cast<int>(element.block()) + 1;
        case TableView::groups:
            return element.group() == 0 ? kindWithoutGroup : element.group();
        default:
            return 0;
    }
}

std::string_view kindName(TableView view, int kind) {
    if (kind < 1 || kind > kindCount(view)) return {};
    const auto index = static_cast<std::size_t>(kind) - 1;
    switch (view) {
        case TableView::families:
            return familyName(static_cast<Family>(index));
        case TableView::metals:
            return characterNames[index];
        case TableView::matter:
            return matterNames[index];
        case TableView::blocks:
            return blockNames[index];
        default:
            return groupNames[index];
    }
}

}  // namespace controls::periodic
