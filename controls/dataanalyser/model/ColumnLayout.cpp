#include "controls/dataanalyser/model/ColumnLayout.h"

#include <algorithm>

namespace controls::dataanalyser {

void ColumnLayout::setWidth(std::size_t column, int pixels) {
    columns_[column].width = pixels >= minWidth && pixels <= maxWidth ? pixels : automatic;
}

void ColumnLayout::setShown(std::size_t column, bool shown) {
    if (!shown && shownColumns() == std::vector{column}) return;
    columns_[column].hidden = !shown;
}

std::vector<std::size_t> ColumnLayout::shownColumns() const {
    std::vector<std::size_t> shownOnes;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (shown(column)) shownOnes.push_back(column);
    }
    return shownOnes;
}

std::vector<int> ColumnLayout::spread(int space, std::span<const int> needed) const {
    std::vector<int> widths(columns_.size());
    std::vector<std::size_t> sharing;
    int totalNeeded = 0;
    for (const std::size_t column : shownColumns()) {
        widths[column] = columns_[column].width;
        space -= widths[column];
        if (widths[column] != automatic) continue;
        sharing.push_back(column);
        totalNeeded += needed[column];
    }
    if (totalNeeded == 0) return widths;
    int rest = std::max(space, totalNeeded);
    for (const std::size_t column : sharing) {
        // Each takes its part of what is left, so that no pixel is lost by rounding.
        const int part = needed[column] * rest / totalNeeded;
        widths[column] = part;
        rest -= part;
        totalNeeded -= needed[column];
        if (totalNeeded == 0) break;
    }
    return widths;
}

}  // namespace controls::dataanalyser
