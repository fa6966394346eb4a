#include "controls/dataanalyser/ColumnWidths.h"

#include <algorithm>
#include <numeric>

namespace controls::dataanalyser {

namespace {

// What the texts need at least, in the order of the columns.
constexpr ColumnWidths::Widths needed{48, 50, 88, 54, 44, 50, 52, 54, 68, 54, 62};

}  // namespace

void ColumnWidths::set(Column column, int pixels) {
    set_[static_cast<std::size_t>(column)] = pixels >= least && pixels <= most ? pixels : automatic;
}

ColumnWidths::Widths ColumnWidths::spread(int space) const {
    int neededInAll = 0;
    for (std::size_t i = 0; i < columnCount; ++i) neededInAll += set_[i] == automatic ? needed[i] : 0;
    const int taken = std::accumulate(set_.begin(), set_.end(), 0);
    const int rest = std::max(space - taken, neededInAll);
    Widths widths = set_;
    int given = 0;
    std::size_t last = 0;
    for (std::size_t i = 0; i < columnCount; ++i) {
        if (set_[i] != automatic) continue;
        widths[i] = needed[i] * rest / neededInAll;
        given += widths[i];
        last = i;
    }
    if (neededInAll > 0) widths[last] += rest - given;
    return widths;
}

}  // namespace controls::dataanalyser
