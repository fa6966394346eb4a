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
    if (view == TableView::metals) return characterColors[index];
    if (view == TableView::matter) return matterColors[index];
    return appearance::familyColors(*familyOfCode(kind));
}

CellLook lookOf(const Element& element, const TableState& state, int highlighted) {
    const auto quantity = quantityOf(state.view);
    return quantity ? lookOfValue(element, state, *quantity) : lookOfKind(element, state, highlighted);
}

}  // namespace controls::periodic
