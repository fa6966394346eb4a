#include "controls/periodic/TableLayout.h"

#include <algorithm>

#include "controls/periodic/model/ElementKinds.h"

namespace controls::periodic {

namespace {

constexpr int wideStrip = 1300;  // from this width on, the strip stands in one row
constexpr int legendRows = 2;
constexpr int sliderPercent = 36;
constexpr int descriptionPercent = 32;
constexpr double maxHeightToWidth = 1.15;
constexpr double maxWidthToHeight = 1.5;

/// The row of a group's first element.
int firstRow(int group) {
    if (group == 1 || group == columnCount) return 1;
    return group == 2 || group > 12 ? 2 : 4;
}

}  // namespace

TableLayout::TableLayout(QSize size)
    : margin_(std::clamp(size.width() / 100, 4, 16)),
      labelSize_(std::clamp(size.height() / 34, 10, 24)),
      stripRows_(size.width() >= wideStrip ? 1 : 2) {
    const int stripRow = std::clamp(size.height() / 24, 16, 34);
    strip_ = {0, 0, size.width(), std::min(stripRows_ * stripRow, size.height())};
    const int legendHeight = legendRows * (labelSize_ * 3 / 2);
    const int free = size.height() - strip_.height();
    const int width = std::max(size.width() - 2 * margin_ - labelSize_, columnCount);
    // Between the periods and the two rows below lies a third of a cell.
    const int height = std::max(free - 3 * margin_ - labelSize_ - legendHeight, rowCount);
    cellWidth_ = width / columnCount;
    cellHeight_ = std::max(height * 3 / (rowCount * 3 + 1), 1);
    cellHeight_ = std::min(cellHeight_, static_cast<int>(cellWidth_ * maxHeightToWidth));
    cellWidth_ = std::min(cellWidth_, static_cast<int>(cellHeight_ * maxWidthToHeight));
    gap_ = cellWidth_ >= 48 ? 3 : 2;
    innerGap_ = cellHeight_ / 3;

    const int tableHeight = labelSize_ + rowCount * cellHeight_ + innerGap_;
    const int left = (size.width() - labelSize_ - columnCount * cellWidth_) / 2;
    const int top = strip_.height() + (free - tableHeight - margin_ - legendHeight) / 2;
    origin_ = {left + labelSize_, top + labelSize_};
    legend_ = {origin_.x(), top + tableHeight + margin_, columnCount * cellWidth_ - gap_, legendHeight};
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

QRect TableLayout::legend(TableView view) const {
    const QRect slide = slider(view);
    return slide.isEmpty() ? legend_ : legend_.adjusted(0, 0, -slide.width() - 2 * margin_, 0);
}

QRect TableLayout::slider(TableView view) const {
    if (view != TableView::matter && view != TableView::discovery) return {};
    const int width = legend_.width() * sliderPercent / 100;
    return {legend_.right() + 1 - width, legend_.top(), width, legend_.height()};
}

int TableLayout::kindColumns(TableView view) const {
    const bool oneRow = view == TableView::metals || view == TableView::blocks;
    return oneRow ? kindCount(view) : (kindCount(view) + legendRows - 1) / legendRows;
}

QRect TableLayout::kindItem(TableView view, int kind) const {
    const QRect space = legend(view);
    const int columns = kindColumns(view);
    const int width = space.width() / columns;
    const int height = space.height() / legendRows;
    const int index = kind - 1;
    return {space.left() + index % columns * width, space.top() + index / columns * height, width - gap_,
            height};
}

QRect TableLayout::swatch() const {
    const int height = legend_.height() / legendRows;
    const int side = height * 6 / 10;
    return {3, (height - side) / 2, side * 3 / 2, side};
}

QRect TableLayout::description(TableView view) const {
    QRect space = legend(view);
    space.setWidth(space.width() * descriptionPercent / 100);
    return space;
}

QRect TableLayout::quantityName(TableView view) const {
    const QRect space = description(view);
    return {space.left(), space.top(), space.width(), space.height() / legendRows};
}

QRect TableLayout::noDataItem(TableView view) const {
    const QRect space = description(view);
    const int height = space.height() / legendRows;
    return {space.left(), space.top() + height, hasOtherScale(view) ? space.width() / 2 : space.width(),
            height};
}

QRect TableLayout::scaleBox(TableView view) const {
    if (!hasOtherScale(view)) return {};
    return noDataItem(view).translated(noDataItem(view).width(), 0);
}

QRect TableLayout::barSpace(TableView view) const {
    // The numbers at the ends of the bar are wider than the bar.
    const QRect space = legend(view);
    return QRect(QPoint(description(view).right() + 1, space.top()), space.bottomRight())
        .adjusted(2 * labelSize_, 0, -labelSize_, 0);
}

QRect TableLayout::colorBar(TableView view) const {
    const QRect space = barSpace(view);
    const int height = space.height() / legendRows;
    return {space.left(), space.top() + height / 8, space.width(), height * 7 / 8};
}

QRect TableLayout::barFigures(TableView view) const {
    const QRect space = barSpace(view);
    const int height = space.height() / legendRows;
    return {space.left(), space.top() + height, space.width(), height};
}

int TableLayout::elementAt(QPoint point) const {
    const auto found = std::ranges::find_if(
        elements(), [&](const Element& element) { return cell(placeOf(element.number)).contains(point); });
    return found == elements().end() ? 0 : found->number;
}

int TableLayout::kindAt(QPoint point, TableView view) const {
    for (int kind = 1; kind <= kindCount(view); ++kind) {
        if (kindItem(view, kind).contains(point)) return kind;
    }
    return 0;
}

int TableLayout::labelPixels() const { return std::max(labelSize_ * 4 / 5, 9); }

}  // namespace controls::periodic
