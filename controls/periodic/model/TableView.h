#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "controls/elements/ElementQuantity.h"

namespace controls::periodic {

/// What the table shows of each element, in the order of the strip. The code of a view is kept in bookmarks.
/// The views from `electronegativity` on are those of the quantities, in their order.
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
    crust
};
inline constexpr int viewCount = 11;
inline constexpr int firstQuantityView = static_cast<int>(TableView::electronegativity);

/// The code of a view, from 0.
constexpr int viewCode(TableView view) { return static_cast<int>(view); }

/// The view with a code, nothing for another code.
constexpr std::optional<TableView> viewOfCode(int code) {
    if (code < 0 || code >= viewCount) return std::nullopt;
    return static_cast<TableView>(code);
}

/// The quantity that a view shows; nothing for a view of kinds of elements.
constexpr std::optional<Quantity> quantityOf(TableView view) {
    const int code = viewCode(view) - firstQuantityView;
    return code < 0 ? std::nullopt : std::optional(static_cast<Quantity>(code));
}

/// Whether a view has both a linear and a logarithmic colour scale.
constexpr bool hasOtherScale(TableView view) {
    return quantityOf(view).has_value() && view != TableView::discovery;
}

/// The name of a view in the strip, in code page 1253.
std::string_view viewName(TableView view);

}  // namespace controls::periodic
