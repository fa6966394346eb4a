#pragma once

#include <array>

#include "controls/dataanalyser/Column.h"

namespace controls::dataanalyser {

/// How wide the columns are: those that the reader has set keep their width, the others share the rest.
class ColumnWidths {
  public:
    using Widths = std::array<int, columnCount>;
    static constexpr int automatic = 0;
    static constexpr int least = 24;
    static constexpr int most = 600;

    /// The width in pixels that the reader has set, or `automatic`.
    int set(Column column) const { return set_[static_cast<std::size_t>(column)]; }
    /// Any width outside `least` to `most` makes the column automatic.
    void set(Column column, int pixels);
    void clear() { set_.fill(automatic); }

    /// The width of each column for this space in all; no column is narrower than its texts need, so that the
    /// sum may be larger.
    Widths spread(int space) const;

  private:
    Widths set_{};
};

}  // namespace controls::dataanalyser
