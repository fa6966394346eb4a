#pragma once

#include <QWidget>

#include "controls/dataanalyser/ElementView.h"

class QButtonGroup;
class QLabel;

namespace controls::dataanalyser {

class FamilyBox;

/// The analyser on the screen: a strip with the choices and the table under it.
class AnalyserPane : public QWidget {
  public:
    explicit AnalyserPane(QWidget* parent);

    ElementView& table() { return *table_; }
    const ElementView& table() const { return *table_; }

    void setOrder(const RowOrder& order);
    void setUnit(TemperatureUnit unit);

    /// Put the rows on the clipboard as text and as an HTML table; without a selected row the second changes
    /// nothing.
    void copyAll() const;
    void copySelected() const;

    QSize sizeHint() const override;

  private:
    QWidget* makeStrip();
    void copy(const std::vector<int>& numbers) const;
    void listChosenFamily();

    ElementView* table_;
    FamilyBox* families_;
    QButtonGroup* units_;
    QLabel* count_;
};

}  // namespace controls::dataanalyser
