#pragma once

#include <QSlider>
#include <functional>

#include "controls/periodic/Lettering.h"

namespace controls::periodic {

/// A slider with its value in words above it. A click leads straight to the value there, a double click back
/// to the usual one.
class ValueSlider : public QSlider {
  public:
    ValueSlider(Lettering& lettering, QWidget* parent);

    /// What the slider is for: its range, the value it goes back to, its name and the words for a value. No
    /// change of value is told.
    struct Purpose {
        int least;
        int most;
        int usual;
        int step;
        QString name;
        std::function<QString(int value)> words;
    };
    void setPurpose(Purpose purpose, int value);

    /// Where the handle's middle stands at a value, in the slider's coordinates.
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

    Lettering& lettering_;
    Purpose purpose_{};
};

}  // namespace controls::periodic
