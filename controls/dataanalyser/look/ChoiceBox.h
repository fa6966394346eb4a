#pragma once

#include <QComboBox>

namespace controls::dataanalyser {

/// A drop-down list in the component's own look.
class ChoiceBox : public QComboBox {
  public:
    ChoiceBox(const QString& accessibleName, QWidget* parent);

    /// Replaces the items, each with a value of its own, and chooses the one with `chosen`.
    void setItems(const QList<QPair<QString, int>>& items, int chosen);
    int chosen() const { return currentData().toInt(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace controls::dataanalyser
