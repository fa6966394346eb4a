#pragma once

#include <QString>
#include <QWidget>

namespace controls {

/// A calm face for a component that only tells its name.
class NamePlate : public QWidget {
  public:
    NamePlate(QString name, QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString name_;
};

}  // namespace controls
