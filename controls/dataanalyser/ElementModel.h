#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "controls/dataanalyser/Column.h"
#include "controls/dataanalyser/RowOrder.h"

namespace controls::dataanalyser {

/// The rows and cells of the table as the view asks for them.
class ElementModel : public QAbstractTableModel {
  public:
    explicit ElementModel(QObject* parent);

    const RowOrder& order() const { return order_; }
    void setOrder(const RowOrder& order);
    TemperatureUnit unit() const { return unit_; }
    void setUnit(TemperatureUnit unit);

    /// The atomic numbers of the rows from the top.
    const std::vector<int>& numbers() const { return numbers_; }
    /// The row of an element, −1 when it is not listed.
    int rowOf(int number) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    RowOrder order_;
    TemperatureUnit unit_ = TemperatureUnit::kelvin;
    std::vector<int> numbers_;
};

}  // namespace controls::dataanalyser
