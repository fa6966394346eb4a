#pragma once

#include <QSlider>
#include <functional>

#include "controls/periodic/TextFitter.h"

namespace controls::periodic {

/// A slider with its value in words above it. A click sets the value at that place, a double click the usual
/// value.
class ValueSlider : public QSlider {
  public:
    ValueSlider(TextFitter& fitter, QWidget* parent);

    /// What the slider stands for: its range, the value after a double click, its name and the words for a
    /// value.
    struct Purpose {
        int min;
        int max;
        int usual;
        int step;
        QString name;
        std::function<QString(int value)> words;
    };
    /// Sets purpose and value without telling of a change of the value.
    void setPurpose(Purpose purpose, int value);

    /// The x coordinate of the handle's middle at a value.
    int positionOf(int value) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    QRect groove() const;
    int valueAt(int x) const;

    TextFitter& fitter_;
    Purpose purpose_{};
};

}  // namespace controls::periodic
