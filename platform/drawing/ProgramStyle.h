#pragma once

#include <QProxyStyle>

namespace platform {

/// The look of the program's windows, the same on every desktop. Standard pictures are loaded only when they
/// are shown first: the menu bar and edit fields request some when they are made and mostly never show them.
/// The question mark of message boxes is drawn in high resolution.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle();

    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace platform
