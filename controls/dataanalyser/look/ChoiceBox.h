#pragma once

#include <QComboBox>

namespace controls::dataanalyser {

/// A drop-down list with the look of the component.
class ChoiceBox : public QComboBox {
  public:
    ChoiceBox(const QString& accessibleName, QWidget* parent);

    /// Sets the items as texts with values, and chooses the one with the value `chosen`. The box hides itself
    /// when there are fewer than two.
    void setItems(const QList<QPair<QString, int>>& items, int chosen);
    int chosen() const { return currentData().toInt(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace controls::dataanalyser
