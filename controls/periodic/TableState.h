#pragma once

#include <cstdint>
#include <optional>

#include "controls/common/Element.h"

namespace controls::periodic {

/// What the table shows of each element. A view's code is kept in bookmarks.
enum class TableView : std::uint8_t { families = 0 };

/// What a bookmark of the table brings back.
struct TableState {
    int selected = 0;  ///< atomic number, 0 for none
    TableView view = TableView::families;
    std::optional<Family> highlighted;  ///< the family that stands out
    friend bool operator==(const TableState&, const TableState&) = default;
};

/// The first half: bits 0 to 7 the selected element, bits 8 to 15 the view's code, the rest 0.
std::int32_t firstHalf(const TableState& state);
/// The second half: the code of the highlighted family, 0 for none.
std::int32_t secondHalf(const TableState& state);

/// The state with these halves. A half that no state has counts as 0.
TableState stateOf(std::int32_t first, std::int32_t second);

}  // namespace controls::periodic
