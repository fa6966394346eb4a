#pragma once

#include <QAbstractTableModel>

#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

/// The rows that the analyser lists, for the table on the screen. Hidden columns are the view's business.
class TableModel : public QAbstractTableModel {
  public:
    TableModel(const Analyser& analyser, QObject* parent)
        : QAbstractTableModel(parent), analyser_(analyser) {}

    const Analyser& analyser() const { return analyser_; }

    /// Takes the rows anew.
    void reset();
    /// Cells and headings have changed, but not the rows.
    void refreshCells();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The place in the data set of a row of the table, −1 outside it.
    int placeAt(int row) const;
    /// The row of the table that shows a place in the data set, −1 for none.
    int rowOf(int place) const;
    const formats::DataColumn* column(int section) const;

  private:
    const Analyser& analyser_;
};

}  // namespace controls::dataanalyser
