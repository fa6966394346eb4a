#include "platform/windows/MessageFilter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>
#include <memory>
#include <utility>

#include "platform/input/InputMessages.h"
#include "platform/input/InputRoute.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/input/MouseCapture.h"
#include "platform/input/VirtualKeys.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/InputDelivery.h"
#include "platform/windows/PaintQueue.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

namespace {

InputHooks currentHooks;
Qt::KeyboardModifiers currentModifiers;

bool swallows(const std::optional<MSG>& message) {
    return message && currentHooks.preTranslate && currentHooks.preTranslate(*message);
}

bool isKey(QEvent::Type type) { return type == QEvent::KeyPress || type == QEvent::KeyRelease; }

/// Delivers the event to the window that has captured the mouse; false when none has.
bool deliverCaptured(const QEvent& event) {
    const HWND window = capturingWindow();
    if (window == 0) return false;
    const std::optional<MSG> message = inputMessageFor(event, window);
    if (message && !swallows(message)) deliverInput(*message);
    return true;
}

/// The widget that receives a press in the window. Null when a menu or another dialog receives it, and for
/// the web engine's own windows inside widgets.
QWidget* widgetInReach(const QWindow& window, QPoint position) {
    if (!window.inherits("QWidgetWindow")) return nullptr;
    QWidget* const top = QWidget::find(window.winId());
    if (!top || QApplication::activePopupWidget() || isBlockedByDialog(*top)) return nullptr;
    QWidget* const child = top->childAt(position);
    return child ? child : top;
}

/// When the pointer enters the window and then stays still, Qt sends no move. But the program acts on the
/// part that the last move was over, so a press would miss its target.
void moveToEntrance(const QWindow& window, const QEnterEvent& entering) {
    auto* const surface = dynamic_cast<SurfaceWidget*>(widgetInReach(window, entering.position().toPoint()));
    if (!surface) return;
    QMouseEvent move(QEvent::MouseMove, surface->mapFromGlobal(entering.globalPosition()),
                     entering.scenePosition(), entering.globalPosition(), Qt::NoButton, entering.buttons(),
                     entering.modifiers());
    move.setTimestamp(entering.timestamp());
    QApplication::sendEvent(surface, &move);
}

class MessageFilter : public QObject {
  public:
    explicit MessageFilter(QApplication& application) : QObject(&application) {
        application.installEventFilter(this);
        connect(&application, &QApplication::focusChanged, this, &MessageFilter::focusMoved);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (receiver->isWidgetType()) {
            if (type == QEvent::UpdateRequest) deliverScheduledPaints();
            return atWidget(static_cast<QWidget&>(*receiver), *event);
        }
        if (!receiver->isWindowType()) return false;
        if (type == QEvent::Expose || type == QEvent::Paint || type == QEvent::UpdateRequest) {
            deliverScheduledPaints();
        }
        if (type == QEvent::Enter) {
            moveToEntrance(static_cast<QWindow&>(*receiver), static_cast<QEnterEvent&>(*event));
        }
        if (!isMouseEvent(type)) return false;
        auto& mouse = static_cast<QMouseEvent&>(*event);
        if (type == QEvent::MouseMove || type == QEvent::MouseButtonRelease) return followsTakenPress(mouse);
        return pressAtWindow(static_cast<QWindow&>(*receiver), mouse);
    }

  private:
    /// Presses are examined at the native window, before Qt gives the widget the focus: a swallowed press
    /// must not move the focus.
    bool pressAtWindow(const QWindow& window, const QMouseEvent& event) {
        // For a double click Qt sends a press too, which it does not pass to widgets.
        if (event.flags() & Qt::MouseEventCreatedDoubleClick) return false;
        QWidget* const widget = widgetInReach(window, event.position().toPoint());
        if (!widget) return false;
        route_.arriveAtWindow(event);
        currentModifiers = event.modifiers();
        const bool taken = deliverCaptured(event) || swallowsInput(event, *widget);
        taken_.setFlag(event.button(), taken);
        return taken;
    }

    /// Qt does not know of a swallowed press, so it passes the following moves and the release to no widget.
    bool followsTakenPress(const QMouseEvent& event) {
        const bool follows =
            event.type() == QEvent::MouseMove ? taken_ != Qt::NoButton : taken_.testFlag(event.button());
        if (event.type() == QEvent::MouseButtonRelease) taken_.setFlag(event.button(), false);
        currentModifiers = event.modifiers();
        return follows && deliverCaptured(event);
    }

    bool atWidget(QWidget& widget, QEvent& event) {
        const QEvent::Type type = event.type();
        if (type == QEvent::ContextMenu) return isUnwantedMenu(event);
        if (type == QEvent::ShortcutOverride) return claim(widget, static_cast<QKeyEvent&>(event));
        if (!isMouseEvent(type) && !isKey(type)) return false;
        const bool popup = QApplication::activePopupWidget();
        if (isKey(type) && popup) return false;
        auto& input = static_cast<QInputEvent&>(event);
        if (!route_.arriveAtWidget(input, widget)) return false;
        currentModifiers = input.modifiers();
        const bool taken =
            (isMouseEvent(type) && !popup && deliverCaptured(event)) || swallowsInput(event, widget);
        if (taken) event.accept();
        return taken;
    }

    /// Whether the input at a widget is swallowed. Remembers that for a press of the right button, from which
    /// Qt makes a context menu event.
    bool swallowsInput(const QEvent& event, QWidget& widget) {
        const std::optional<MSG> message = inputMessage(event, widget);
        const bool swallowed = swallows(message);
        if (message && message->message == WM_RBUTTONDOWN) menuSwallowed_ = swallowed;
        return swallowed;
    }

    bool isUnwantedMenu(const QEvent& event) const {
        return menuSwallowed_ &&
               static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Mouse;
    }

    static bool claim(QWidget& widget, QKeyEvent& event) {
        const UINT key = virtualKey(event.key());
        currentModifiers = event.modifiers();
        const HWND window = WindowTable::instance().nearestHandle(&widget);
        if (!currentHooks.claimsKey || !currentHooks.claimsKey(window, key)) return false;
        event.accept();
        return true;
    }

    static void focusMoved(const QWidget* from, QWidget* to) {
        focusHasMoved(to);
        const WindowTable& table = WindowTable::instance();
        const HWND left = table.nearestHandle(from);
        const HWND entered = table.nearestHandle(to);
        const HWND old = table.handleOf(from);
        if (CWnd::FromHandle(old)) table.send(old, WM_KILLFOCUS, static_cast<WPARAM>(entered));
        const HWND now = table.handleOf(to);
        if (CWnd::FromHandle(now)) table.send(now, WM_SETFOCUS, static_cast<WPARAM>(left));
    }

    InputRoute route_;
    Qt::MouseButtons taken_;
    bool menuSwallowed_ = false;
};

}  // namespace

bool isBlockedByDialog(const QWidget& widget) {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && modal != &widget && !modal->isAncestorOf(&widget);
}

void setInputHooks(InputHooks hooks) { currentHooks = std::move(hooks); }

void installMessageFilter() {
    static QPointer<MessageFilter> filter;
    if (!filter && qApp) filter = std::make_unique<MessageFilter>(*qApp).release();
}

Qt::KeyboardModifiers inputModifiers() { return currentModifiers; }

}  // namespace platform
