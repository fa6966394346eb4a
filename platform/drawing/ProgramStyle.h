#pragma once

#include <QProxyStyle>

namespace platform {

/// The look of the program's own windows, the same on every desktop. A standard picture is loaded when it is
/// first shown: the menu bar and the entry fields ask for theirs when they are made and mostly show none. The
/// question mark of message boxes is drawn sharp for every screen.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle();

    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace platform
