#include "controls/dataanalyser/ElementModel.h"

#include <algorithm>

#include "controls/common/QtText.h"

namespace controls::dataanalyser {

namespace {

QVariant alignment(Column column) {
    const Qt::Alignment horizontal = column == Column::symbol ? Qt::AlignHCenter
                                     : isText(column)         ? Qt::AlignLeft
                                                              : Qt::AlignRight;
    return QVariant::fromValue(horizontal | Qt::AlignVCenter);
}

}  // namespace

ElementModel::ElementModel(QObject* parent) : QAbstractTableModel(parent), numbers_(orderedRows(order_)) {}

void ElementModel::setOrder(const RowOrder& order) {
    beginResetModel();
    order_ = order;
    numbers_ = orderedRows(order);
    endResetModel();
}

void ElementModel::setUnit(TemperatureUnit unit) {
    unit_ = unit;
    emit dataChanged(index(0, 0), index(rowCount() - 1, dataanalyser::columnCount - 1));
    emit headerDataChanged(Qt::Horizontal, 0, dataanalyser::columnCount - 1);
}

int ElementModel::rowOf(int number) const {
    const auto found = std::ranges::find(numbers_, number);
    return found == numbers_.end() ? -1 : static_cast<int>(found - numbers_.begin());
}

int ElementModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(numbers_.size());
}

int ElementModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : dataanalyser::columnCount;
}

QVariant ElementModel::data(const QModelIndex& index, int role) const {
    const auto column = columnOfCode(index.column());
    if (!column || index.row() < 0 || index.row() >= rowCount()) return {};
    if (role == Qt::TextAlignmentRole) return alignment(*column);
    if (role != Qt::DisplayRole) return {};
    const Element& element = *findElement(numbers_[static_cast<std::size_t>(index.row())]);
    return toQt(cellText(element, *column, unit_));
}

QVariant ElementModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = columnOfCode(section);
    if (!column || orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return toQt(heading(*column, unit_));
    return {};
}

}  // namespace controls::dataanalyser
