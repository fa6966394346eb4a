#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "controls/elements/ElementQuantity.h"

namespace controls::periodic {

/// What the table shows of each element. The code of a view is kept in bookmarks, so later ones come last;
/// `viewOrder` is the order of the strip.
enum class TableView : std::uint8_t {
    families,
    metals,
    matter,
    electronegativity,
    covalentRadius,
    ionisation,
    density,
    melting,
    boiling,
    discovery,
    crust,
    blocks,
    groups,
    electronAffinity,
    vanDerWaalsRadius
};
inline constexpr int viewCount = 15;

/// The views in the order of the strip. With two rows, the second begins with `viewOrder[firstOfSecondRow]`.
inline constexpr std::array<TableView, viewCount> viewOrder{
    TableView::families,       TableView::metals,
    TableView::blocks,         TableView::groups,
    TableView::matter,         TableView::electronegativity,
    TableView::covalentRadius, TableView::vanDerWaalsRadius,
    TableView::ionisation,     TableView::electronAffinity,
    TableView::density,        TableView::melting,
    TableView::boiling,        TableView::discovery,
    TableView::crust};
inline constexpr std::size_t firstOfSecondRow = 8;

/// The code of a view, from 0.
constexpr int viewCode(TableView view) { return static_cast<int>(view); }

/// The view with a code, nothing for another code.
constexpr std::optional<TableView> viewOfCode(int code) {
    if (code < 0 || code >= viewCount) return std::nullopt;
    return static_cast<TableView>(code);
}

/// The quantity that a view shows; nothing for a view of kinds of elements.
std::optional<Quantity> quantityOf(TableView view);

/// Whether a view has both a linear and a logarithmic colour scale.
bool hasOtherScale(TableView view);

/// The view that stands so many places behind another in the strip; the first follows the last.
TableView viewBeside(TableView view, int places);

/// The name of a view in the strip, in code page 1253.
std::string_view viewName(TableView view);

}  // namespace controls::periodic
