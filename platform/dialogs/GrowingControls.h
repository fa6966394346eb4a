#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <vector>

namespace platform {

/// The controls of a dialog that the user can enlarge, and how they follow its size.
class GrowingControls {
  public:
    /// Takes the controls as they lie in the dialog at its smallest size; `growing` is the one that takes the
    /// room.
    void begin(const std::vector<QWidget*>& controls, const QWidget& growing, QSize smallest);
    bool any() const { return !places_.empty(); }
    /// The dialog has this size now.
    void follow(QSize size) const;

  private:
    struct Place {
        QPointer<QWidget> control;
        QRect smallest;
        QMargins share;  // how many of the pixels gained each edge moves: 0 or 1
    };
    std::vector<Place> places_;
    QSize smallest_;
};

}  // namespace platform
