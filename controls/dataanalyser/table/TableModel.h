#pragma once

#include <QAbstractTableModel>

#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

/// The rows that the analyser lists, for the table on the screen. It has all columns; the view hides some.
class TableModel : public QAbstractTableModel {
  public:
    TableModel(const Analyser& analyser, QObject* parent)
        : QAbstractTableModel(parent), analyser_(analyser) {}

    const Analyser& analyser() const { return analyser_; }

    /// Tells the view that the rows have changed.
    void reset();
    /// Tells the view that cells and headings have changed, but not the rows.
    void refreshCells();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The place in the data set of a row of the table, −1 when there is no such row.
    int placeAt(int row) const;
    /// The row of the table for a place in the data set, −1 when it is not listed.
    int rowOf(int place) const;
    /// The column of a section of the heading, null when there is none.
    const formats::DataColumn* column(int section) const;

  private:
    const Analyser& analyser_;
};

}  // namespace controls::dataanalyser
