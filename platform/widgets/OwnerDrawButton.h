#pragma once

#include <QAbstractButton>

namespace platform {

/// A push button that its CButton draws.
class OwnerDrawButton : public QAbstractButton {
  public:
    explicit OwnerDrawButton(QWidget& parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace platform
