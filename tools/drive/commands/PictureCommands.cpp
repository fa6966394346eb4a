#include <QAbstractAnimation>
#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "platform/qt/QtConvert.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/PageFrame.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/Request.h"

/// Pictures and pixels of windows. They are taken from the top-level window, so that they include what lies
/// in front of a window.
namespace drive {

using namespace platform;

namespace {

/// A clock for animations that has run on for longer than any of them takes.
class LaterClock : public QAnimationDriver {
  public:
    qint64 elapsed() const override { return 10'000; }
};

/// Controls that fade in or out are shown as they will be then.
void finishAnimations() {
    LaterClock clock;
    clock.install();
    clock.advance();
}

/// A part of the screen as the top-level window of `window` shows it. `window` must exist.
QImage shown(HWND window, const CRect& onScreen) {
    QWidget& top = *widgetOf(window).window();
    const QRect part(top.mapFromGlobal(toQt(onScreen.TopLeft())), QSize(onScreen.Width(), onScreen.Height()));
    awaitFrames(top, part);
    finishAnimations();
    return top.grab(part).toImage();
}

/// The window that an argument names. The request fails when there is none.
HWND windowFor(Request& request, std::size_t index) {
    const Result<HWND> window =
        chooseWindow(request.argumentCount() > index ? &request.argument(index) : nullptr);
    if (window) return *window;
    request.fail(window.failure().message);
    return 0;
}

void pixel(Request& request, Program&) {
    const Request::Hold hold(request);
    const std::optional<int> x = number<int>(request.argument(0));
    const std::optional<int> y = number<int>(request.argument(1));
    if (!x || !y) return request.fail("X and Y are whole numbers");
    const HWND window = windowFor(request, 2);
    if (window == 0) return;
    const CPoint at = clientToScreen(window, {*x, *y});
    const QImage image = shown(window, CRect::at(at.x, at.y, 1, 1));
    request.set("rgb", image.pixelColor(0, 0).name().mid(1).toStdString());
}

void picture(Request& request, Program&) {
    const Request::Hold hold(request);
    const HWND window = windowFor(request, 1);
    if (window == 0) return;
    const QWidget& widget = widgetOf(window);
    const QImage image = shown(window, fromQt(QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size())));
    if (!image.save(QString::fromStdString(request.argument(0)), "PNG")) {
        return request.fail(request.argument(0) + " cannot be written");
    }
    request.set("width", image.width());
    request.set("height", image.height());
}

constexpr Command pictureTable[] = {{"pixel", 2, 3, pixel}, {"picture", 1, 2, picture}};

}  // namespace

std::span<const Command> pictureCommands() { return pictureTable; }

}  // namespace drive
