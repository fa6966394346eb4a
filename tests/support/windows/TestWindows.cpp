#include "tests/support/windows/TestWindows.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QThread>
#include <QWidget>
#include <algorithm>
#include <array>

#include "platform/qt/WindowTable.h"
#include "platform/windows/WindowWidget.h"

namespace windows_test {

using namespace platform;

Log& Log::instance() {
    static Log log;
    return log;
}

Lines Log::lines(std::initializer_list<std::string_view> messages) const {
    Lines found;
    for (const std::string& line : lines_) {
        const bool asked = std::ranges::any_of(
            messages, [&](std::string_view message) { return line.find(message) != line.npos; });
        if (asked || messages.size() == 0) found.push_back(line);
    }
    return found;
}

std::size_t Log::count(std::string_view text) const {
    return static_cast<std::size_t>(std::count_if(
        lines_.begin(), lines_.end(), [&](const std::string& line) { return line.find(text) != line.npos; }));
}

std::string describe(UINT message, WPARAM wParam, LPARAM lParam) {
#define NAMED(message) std::pair(message, #message)
    constexpr std::array names = {
        NAMED(WM_CREATE),      NAMED(WM_DESTROY),   NAMED(WM_SIZE),         NAMED(WM_SETFOCUS),
        NAMED(WM_KILLFOCUS),   NAMED(WM_PAINT),     NAMED(WM_CLOSE),        NAMED(WM_ERASEBKGND),
        NAMED(WM_SETCURSOR),   NAMED(WM_KEYDOWN),   NAMED(WM_KEYUP),        NAMED(WM_COMMAND),
        NAMED(WM_TIMER),       NAMED(WM_MOUSEMOVE), NAMED(WM_LBUTTONDOWN),  NAMED(WM_LBUTTONUP),
        NAMED(WM_RBUTTONDOWN), NAMED(WM_RBUTTONUP), NAMED(WM_LBUTTONDBLCLK)};
#undef NAMED
    const auto* const found =
        std::ranges::find_if(names, [&](const auto& name) { return name.first == message; });
    std::string text = found == std::end(names) ? std::to_string(message) : found->second;
    const CPoint point = unpackPoint(lParam);
    if (message == WM_SIZE) {
        text += " " + std::to_string(wParam) + " " + std::to_string(point.x) + "x" + std::to_string(point.y);
    } else if (message >= WM_MOUSEMOVE && message <= WM_RBUTTONUP) {
        text += " " + std::to_string(point.x) + "," + std::to_string(point.y);
    } else if (message == WM_KEYDOWN || message == WM_TIMER || message == WM_COMMAND) {
        text += " " + std::to_string(wParam);
    }
    return text;
}

void settle() { settleFor(0); }

void settleFor(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    // Updates of a top-level window come a few milliseconds after they were asked for.
    for (int quiet = 0; quiet < 10 || clock.elapsed() < milliseconds; ++quiet) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(2);
    }
}

QWidget& widgetOf(const CWnd& window) { return *WindowTable::instance().widget(window.GetSafeHwnd()); }

std::string shownColour(const CWnd& window, int x, int y) {
    const auto& widget = dynamic_cast<WindowWidget&>(widgetOf(window));
    const QPoint corner = widget.clientArea().topLeft();
    const QImage shown = widgetOf(window).grab().toImage();
    return shown.pixelColor((corner + QPoint(x, y)) * shown.devicePixelRatio()).name().mid(1).toStdString();
}

}  // namespace windows_test
