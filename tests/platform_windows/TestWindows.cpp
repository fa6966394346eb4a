#include "tests/platform_windows/TestWindows.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QThread>
#include <QWidget>
#include <algorithm>
#include <map>

#include "platform/handles/WindowTable.h"
#include "platform/windows/WindowWidget.h"

namespace windows_test {

using namespace platform;

Log& Log::instance() {
    static Log log;
    return log;
}

std::vector<std::string> Log::lines(std::initializer_list<std::string_view> messages) const {
    std::vector<std::string> found;
    for (const std::string& line : lines_) {
        const bool asked = std::any_of(messages.begin(), messages.end(), [&](std::string_view message) {
            return line.find(message) != line.npos;
        });
        if (asked || messages.size() == 0) found.push_back(line);
    }
    return found;
}

std::size_t Log::count(std::string_view text) const {
    return static_cast<std::size_t>(std::count_if(
        lines_.begin(), lines_.end(), [&](const std::string& line) { return line.find(text) != line.npos; }));
}

std::string describe(UINT message, WPARAM wParam, LPARAM lParam) {
    static const std::map<UINT, std::string> names = {{WM_CREATE, "WM_CREATE"},
                                                      {WM_DESTROY, "WM_DESTROY"},
                                                      {WM_SIZE, "WM_SIZE"},
                                                      {WM_SETFOCUS, "WM_SETFOCUS"},
                                                      {WM_KILLFOCUS, "WM_KILLFOCUS"},
                                                      {WM_PAINT, "WM_PAINT"},
                                                      {WM_CLOSE, "WM_CLOSE"},
                                                      {WM_ERASEBKGND, "WM_ERASEBKGND"},
                                                      {WM_SETCURSOR, "WM_SETCURSOR"},
                                                      {WM_KEYDOWN, "WM_KEYDOWN"},
                                                      {WM_KEYUP, "WM_KEYUP"},
                                                      {WM_COMMAND, "WM_COMMAND"},
                                                      {WM_TIMER, "WM_TIMER"},
                                                      {WM_MOUSEMOVE, "WM_MOUSEMOVE"},
                                                      {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"},
                                                      {WM_LBUTTONUP, "WM_LBUTTONUP"},
                                                      {WM_RBUTTONDOWN, "WM_RBUTTONDOWN"},
                                                      {WM_RBUTTONUP, "WM_RBUTTONUP"},
                                                      {WM_LBUTTONDBLCLK, "WM_LBUTTONDBLCLK"}};
    const auto found = names.find(message);
    std::string text = found == names.end() ? std::to_string(message) : found->second;
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
