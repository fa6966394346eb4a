#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace platform {

/// Keeps a child as large as the area around it while that is in sight, and hidden while it lies outside the
/// window. A hidden page keeps no pictures of itself, and what moves in it rests. Belongs to the child.
class FillingInSight : public QObject {
  public:
    FillingInSight(QWidget& area, QWidget* filling);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void hide();
    void fill();

    QWidget& area_;
    QWidget& filling_;
    QTimer soon_;
};

}  // namespace platform
