#pragma once

#include <QAbstractButton>

namespace platform {

/// A push button that its CButton draws. Its name is its tip too, since it shows a picture alone.
class OwnerDrawButton : public QAbstractButton {
  public:
    explicit OwnerDrawButton(QWidget& parent);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace platform
