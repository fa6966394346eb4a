#include "controls/periodic/TableLayout.h"

#include <algorithm>

namespace controls::periodic {

namespace {

constexpr int wideLegend = 1200;  // from this width on, the legend stands in one line
constexpr double highestCell = 1.15;
constexpr double widestCell = 1.5;

/// The row of a group's first element.
int firstRow(int group) {
    if (group == 1 || group == columnCount) return 1;
    return group == 2 || group > 12 ? 2 : 4;
}

}  // namespace

TableLayout::TableLayout(QSize size)
    : margin_(std::clamp(size.width() / 100, 4, 16)),
      labelSize_(std::clamp(size.height() / 34, 10, 24)),
      legendColumns_(size.width() >= wideLegend ? familyCount : familyCount / 2) {
    const int legendHeight = labelSize_ * 3 / 2 * (familyCount / legendColumns_);
    const int width = std::max(size.width() - 2 * margin_ - labelSize_, columnCount);
    // A third of a cell parts the periods from the two rows below.
    const int height = std::max(size.height() - 3 * margin_ - labelSize_ - legendHeight, rowCount);
    cellWidth_ = width / columnCount;
    cellHeight_ = std::max(height * 3 / (rowCount * 3 + 1), 1);
    cellHeight_ = std::min(cellHeight_, static_cast<int>(cellWidth_ * highestCell));
    cellWidth_ = std::min(cellWidth_, static_cast<int>(cellHeight_ * widestCell));
    gap_ = cellWidth_ >= 48 ? 3 : 2;
    innerGap_ = cellHeight_ / 3;

    const int tableHeight = labelSize_ + rowCount * cellHeight_ + innerGap_;
    const int left = (size.width() - labelSize_ - columnCount * cellWidth_) / 2;
    const int top = (size.height() - tableHeight - margin_ - legendHeight) / 2;
    origin_ = {left + labelSize_, top + labelSize_};
    legend_ = {origin_.x(), top + tableHeight + margin_, columnCount * cellWidth_, legendHeight};
}

QRect TableLayout::cell(Place place) const {
    const int below = place.row >= lanthanideRow ? innerGap_ : 0;
    const QPoint corner(origin_.x() + (place.column - 1) * cellWidth_,
                        origin_.y() + (place.row - 1) * cellHeight_ + below);
    return {corner, cellSize()};
}

QRect TableLayout::groupLabel(int group) const {
    const QRect first = cell({group, firstRow(group)});
    return {first.left(), first.top() - labelSize_, first.width(), labelSize_};
}

QRect TableLayout::periodLabel(int period) const {
    const QRect first = cell({1, period});
    return {first.left() - labelSize_, first.top(), labelSize_ - gap_, first.height()};
}

QRect TableLayout::rowName(int row) const {
    const QRect inner = cell({innerColumn, row});
    const int left = origin_.x() - labelSize_;
    return {left, inner.top(), inner.left() - left - 2 * gap_, inner.height()};
}

QRect TableLayout::card() const {
    const QRect first = cell({3, 1});
    const QRect last = cell({12, 3});
    const QRect space(QPoint(first.left(), origin_.y() - labelSize_ / 2),
                      QPoint(last.right(), groupLabel(3).top() - 1));
    return space.adjusted(cellWidth_ / 4, 0, -cellWidth_ / 4, -gap_);
}

QRect TableLayout::legendItem(Family family) const {
    const int index = static_cast<int>(family);
    const int rows = familyCount / legendColumns_;
    const int width = legend_.width() / legendColumns_;
    const int height = legend_.height() / rows;
    return {legend_.left() + index % legendColumns_ * width, legend_.top() + index / legendColumns_ * height,
            width - gap_, height};
}

QRect TableLayout::legendSwatch() const {
    const int height = legendItem(Family{}).height();
    const int side = height * 6 / 10;
    return {3, (height - side) / 2, side * 3 / 2, side};
}

int TableLayout::elementAt(QPoint point) const {
    const auto found = std::ranges::find_if(
        elements(), [&](const Element& element) { return cell(placeOf(element.number)).contains(point); });
    return found == elements().end() ? 0 : found->number;
}

std::optional<Family> TableLayout::legendAt(QPoint point) const {
    for (int code = 1; code <= familyCount; ++code) {
        const auto family = familyOfCode(code);
        if (legendItem(*family).contains(point)) return family;
    }
    return std::nullopt;
}

int TableLayout::labelPixels() const { return std::max(labelSize_ * 4 / 5, 9); }

}  // namespace controls::periodic
