#pragma once

#include <QCheckBox>

#include "controls/periodic/TextFitter.h"

namespace controls::periodic {

/// The check box in the legend that chooses a logarithmic colour scale.
class ScaleBox : public QCheckBox {
  public:
    ScaleBox(TextFitter& fitter, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    TextFitter& fitter_;
};

}  // namespace controls::periodic
