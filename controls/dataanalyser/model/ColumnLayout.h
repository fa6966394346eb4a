#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace controls::dataanalyser {

/// Which columns of the table are shown, and their widths. Columns whose width the reader has set keep it;
/// the others share the rest of the space.
class ColumnLayout {
  public:
    static constexpr int automatic = 0;
    static constexpr int minWidth = 24;
    static constexpr int maxWidth = 600;

    explicit ColumnLayout(std::size_t columns = 0) : columns_(columns) {}

    std::size_t count() const { return columns_.size(); }

    /// The width in pixels that the reader has set, or `automatic`.
    int width(std::size_t column) const { return columns_[column].width; }
    /// A width outside `minWidth` to `maxWidth` makes the column automatic.
    void setWidth(std::size_t column, int pixels);

    bool shown(std::size_t column) const { return !columns_[column].hidden; }
    /// Hides a column or shows it again. The last column that is shown cannot be hidden.
    void setShown(std::size_t column, bool shown);
    /// The columns shown, from left to right.
    std::vector<std::size_t> shownColumns() const;

    /// Spreads the columns over a space: the width of each, 0 for hidden ones. No automatic column becomes
    /// narrower than it needs, so the sum may be larger than the space.
    std::vector<int> spread(int space, std::span<const int> needed) const;

    friend bool operator==(const ColumnLayout&, const ColumnLayout&) = default;

  private:
    struct Column {
        int width = automatic;
        bool hidden = false;
        friend bool operator==(const Column&, const Column&) = default;
    };
    std::vector<Column> columns_;
};

}  // namespace controls::dataanalyser
