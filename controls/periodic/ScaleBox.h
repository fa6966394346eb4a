#pragma once

#include <QCheckBox>

#include "controls/periodic/Lettering.h"

namespace controls::periodic {

/// The choice of a logarithmic colour scale in the legend.
class ScaleBox : public QCheckBox {
  public:
    ScaleBox(Lettering& lettering, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    Lettering& lettering_;
};

}  // namespace controls::periodic
