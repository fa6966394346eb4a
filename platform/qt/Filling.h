#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace platform {

/// Keeps a child as large as the widget around it; belongs to the child.
class Filling : public QObject {
  public:
    Filling(QWidget& container, QWidget* filling) : QObject(filling), filling_(*filling) {
        container.installEventFilter(this);
        filling->setGeometry(container.rect());
        // If the container is hidden, the child is shown, and laid out, together with it.
        if (container.isVisible()) filling->show();
    }

    bool eventFilter(QObject* container, QEvent* event) override {
        if (event->type() == QEvent::Resize) filling_.setGeometry(static_cast<QWidget*>(container)->rect());
        return false;
    }

  private:
    QWidget& filling_;
};

}  // namespace platform
