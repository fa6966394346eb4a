#include <QAbstractAnimation>
#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "platform/qt/QtConvert.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/PageFrame.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/Numbers.h"

/// What is on show. Pictures are taken of the top-level window, so that what lies over a window is in them.
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

/// That part of the screen, as the window's top-level window shows it; `window` exists.
QImage shown(HWND window, const CRect& onScreen) {
    QWidget& top = *widgetOf(window).window();
    const QRect part(top.mapFromGlobal(toQt(onScreen.TopLeft())), QSize(onScreen.Width(), onScreen.Height()));
    awaitFrames(top, part);
    finishAnimations();
    return top.grab(part).toImage();
}

/// The window that the act's argument names; fails the act when there is none.
HWND windowFor(Act& act, std::size_t index) {
    const WindowChoice choice = chooseWindow(act.count() > index ? &act.word(index) : nullptr);
    if (choice.window == 0) act.fail(choice.error);
    return choice.window;
}

void pixel(Act& act, Program&) {
    const Act::Hold hold(act);
    const std::optional<int> x = number<int>(act.word(0));
    const std::optional<int> y = number<int>(act.word(1));
    if (!x || !y) return act.fail("X and Y are whole numbers");
    const HWND window = windowFor(act, 2);
    if (window == 0) return;
    const CPoint at = clientToScreen(window, {*x, *y});
    const QImage image = shown(window, CRect::at(at.x, at.y, 1, 1));
    act.set("rgb", image.pixelColor(0, 0).name().mid(1).toStdString());
}

void picture(Act& act, Program&) {
    const Act::Hold hold(act);
    const HWND window = windowFor(act, 1);
    if (window == 0) return;
    const QWidget& widget = widgetOf(window);
    const QImage image = shown(window, fromQt(QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size())));
    if (!image.save(QString::fromStdString(act.word(0)), "PNG")) {
        return act.fail(act.word(0) + " cannot be written");
    }
    act.set("width", image.width());
    act.set("height", image.height());
}

constexpr Command kPictureCommands[] = {{"pixel", 2, 3, pixel}, {"picture", 1, 2, picture}};

}  // namespace

std::span<const Command> pictureCommands() { return kPictureCommands; }

}  // namespace drive
