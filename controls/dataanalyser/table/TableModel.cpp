#include "controls/dataanalyser/table/TableModel.h"

#include <algorithm>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/look/ShownText.h"

namespace controls::dataanalyser {

namespace {

QVariant alignment(const formats::DataColumn& column) {
    const Qt::Alignment horizontal = column.isNumber() ? Qt::AlignRight : Qt::AlignLeft;
    return QVariant::fromValue(horizontal | Qt::AlignVCenter);
}

}  // namespace

void TableModel::reset() {
    beginResetModel();
    endResetModel();
}

void TableModel::refreshCells() {
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int TableModel::placeAt(int row) const {
    const auto& rows = analyser_.rows();
    return row < 0 || row >= static_cast<int>(rows.size()) ? -1 : rows[static_cast<std::size_t>(row)];
}

int TableModel::rowOf(int place) const {
    const auto& rows = analyser_.rows();
    const auto found = std::ranges::find(rows, place);
    return place < 0 || found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

const formats::DataColumn* TableModel::column(int section) const {
    const auto& columns = analyser_.dataSet().columns;
    return section < 0 || section >= static_cast<int>(columns.size())
               ? nullptr
               : &columns[static_cast<std::size_t>(section)];
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(analyser_.rows().size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(analyser_.dataSet().columns.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const formats::DataColumn* held = column(index.column());
    const int place = placeAt(index.row());
    if (!held || place < 0) return {};
    if (role == Qt::TextAlignmentRole) return alignment(*held);
    if (role == Qt::DisplayRole) return shownCell(*held, static_cast<std::size_t>(place), analyser_.unit());
    return {};
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const formats::DataColumn* held = column(section);
    if (!held || orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return toQt(heading(*held, analyser_.unit()));
    return {};
}

}  // namespace controls::dataanalyser
