#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace controls::dataanalyser {

/// Which columns of the table are shown and how wide: those that the reader has set keep their width, the
/// others share the rest.
class ColumnLayout {
  public:
    static constexpr int automatic = 0;
    static constexpr int least = 24;
    static constexpr int most = 600;

    explicit ColumnLayout(std::size_t columns = 0) : columns_(columns) {}

    std::size_t count() const { return columns_.size(); }

    /// The width in pixels that the reader has set, or `automatic`.
    int width(std::size_t column) const { return columns_[column].width; }
    /// Any width outside `least` to `most` makes the column automatic.
    void setWidth(std::size_t column, int pixels);

    bool shown(std::size_t column) const { return !columns_[column].hidden; }
    /// Hides a column or shows it again; the last one that is shown stays.
    void setShown(std::size_t column, bool shown);
    /// The columns shown, from left to right.
    std::vector<std::size_t> shownColumns() const;

    /// The width of each column for this space in all, 0 for hidden ones; no column is narrower than `needed`
    /// of it, so that the sum may be larger.
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
