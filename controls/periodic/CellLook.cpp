#include "controls/periodic/CellLook.h"

#include <array>

#include "controls/common/Contrast.h"
#include "controls/common/QtText.h"
#include "controls/periodic/ColorScale.h"
#include "controls/periodic/ValueText.h"
#include "controls/periodic/model/ElementKinds.h"
#include "controls/periodic/model/QuantityScale.h"

namespace controls::periodic {

namespace {

using appearance::GroupColors;

// Blue, yellow and orange differ for every kind of colour vision, and in lightness.
constexpr GroupColors blue{{0xB9, 0xD7, 0xEC}, {0x2B, 0x6C, 0x98}};
constexpr GroupColors yellow{{0xFB, 0xEF, 0xB4}, {0x96, 0x82, 0x0B}};
constexpr GroupColors orange{{0xE9, 0xA0, 0x78}, {0xB2, 0x50, 0x22}};
constexpr GroupColors gray{noData, {0x7C, 0x88, 0x93}};

constexpr std::array characterColors{blue, yellow, orange};
constexpr std::array matterColors{orange, blue, yellow, gray};

constexpr GroupColors violet{{0xA5, 0x8F, 0xD0}, {0x5B, 0x3F, 0x96}};
// In the order of the blocks: s, p, d, f.
constexpr std::array blockColors{orange, yellow, blue, violet};

// Of the groups 1 to 18 and of the elements without one. Any two differ for every kind of colour vision,
// those of neighbouring groups most.
constexpr std::array<GroupColors, kindWithoutGroup> groupColors{{
    {{0x88, 0xCC, 0xD8}, {0x4A, 0x70, 0x76}}, {{0xC1, 0xC5, 0x8E}, {0x6A, 0x6C, 0x4E}},
    {{0x68, 0xDC, 0xC0}, {0x39, 0x79, 0x69}}, {{0x8E, 0x9D, 0x5A}, {0x4E, 0x56, 0x31}},
    {{0xB9, 0xFF, 0xD6}, {0x65, 0x8C, 0x75}}, {{0x5A, 0xB5, 0xD6}, {0x31, 0x63, 0x75}},
    {{0xD3, 0xEB, 0xFF}, {0x74, 0x81, 0x8C}}, {{0x96, 0xAB, 0xB4}, {0x52, 0x5E, 0x63}},
    {{0x69, 0x98, 0xDA}, {0x39, 0x53, 0x77}}, {{0xE6, 0xC3, 0xFF}, {0x7E, 0x6B, 0x8C}},
    {{0xA4, 0x8D, 0xB8}, {0x5A, 0x4D, 0x65}}, {{0x9C, 0xB6, 0xFF}, {0x55, 0x64, 0x8C}},
    {{0xC3, 0x86, 0x90}, {0x6B, 0x49, 0x4F}}, {{0xCE, 0xBC, 0x72}, {0x71, 0x67, 0x3E}},
    {{0xF8, 0xF3, 0xB9}, {0x88, 0x85, 0x65}}, {{0xAD, 0x91, 0x75}, {0x5F, 0x4F, 0x40}},
    {{0xFB, 0xE1, 0x96}, {0x8A, 0x7B, 0x52}}, {{0xEC, 0xA4, 0xA3}, {0x81, 0x5A, 0x59}},
    {{0xDC, 0xE2, 0xE4}, {0x7C, 0x88, 0x93}},
}};

QString bottomOfKind(const Element& element, const TableState& state, int kind) {
    if (state.view != TableView::matter) return toQt(element.massText());
    constexpr std::array words{"στερεό", "υγρό", "αέριο", "–"};
    return QString::fromUtf8(words[static_cast<std::size_t>(kind) - 1]);
}

CellLook lookOfKind(const Element& element, const TableState& state, int highlighted) {
    const int kind = kindOf(element, state.view, state.kelvin);
    const GroupColors colors = kindColors(state.view, kind);
    CellLook look{.fill = colors.fill,
                  .edge = colors.edge,
                  .text = appearance::text,
                  .bottom = bottomOfKind(element, state, kind)};
    const bool unknown = state.view == TableView::matter && element.matterAt(state.kelvin) == Matter::unknown;
    if (unknown) look.ground = CellLook::Ground::hatched;
    if (highlighted != 0 && highlighted != kind) {
        look.fill = appearance::ground;
        look.edge = appearance::line;
        look.text = appearance::muted;
    }
    return look;
}

CellLook lookWithoutData() {
    return {.ground = CellLook::Ground::hatched,
            .fill = noData,
            .edge = noDataStroke,
            .text = appearance::text,
            .bottom = QStringLiteral("–")};
}

CellLook lookOfValue(const Element& element, const TableState& state, Quantity quantity) {
    const auto value = quantityValue(element, quantity);
    if (!value) return lookWithoutData();
    const QColor fill = scaleColor(QuantityScale(quantity, state.otherScale).position(*value));
    CellLook look{.fill = fill,
                  .edge = fill,
                  .text = appearance::readableOn(fill),
                  .bottom = valueText(element, quantity)};
    if (quantity == Quantity::discovery && *value > state.year) {
        look.ground = CellLook::Ground::empty;
        look.text = appearance::muted;
    }
    return look;
}

}  // namespace

GroupColors kindColors(TableView view, int kind) {
    const auto index = static_cast<std::size_t>(kind) - 1;
    switch (view) {
        case TableView::metals:
            return characterColors[index];
        case TableView::matter:
            return matterColors[index];
        case TableView::blocks:
            return blockColors[index];
        case TableView::groups:
            return groupColors[index];
        default:
            return appearance::familyColors(static_cast<Family>(index));
    }
}

CellLook lookOf(const Element& element, const TableState& state, int highlighted) {
    const auto quantity = quantityOf(state.view);
    return quantity ? lookOfValue(element, state, *quantity) : lookOfKind(element, state, highlighted);
}

}  // namespace controls::periodic
