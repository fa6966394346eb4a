#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <map>
#include <optional>

#include "platform/base/Messages.h"
#include "platform/qt/ClientArea.h"
#include "platform/windows/Wnd.h"

namespace platform {

/// The widget behind a CWnd's window. It stands in the window table as long as the window exists, and knows
/// the object whose window it is.
class WindowWidget : public QWidget, public HasClientArea {
  public:
    /// Makes the widget, hidden, and gives `owner` its handle.
    WindowWidget(CWnd& owner, QWidget* parent, int controlId);
    ~WindowWidget() override;

    /// The widget of a handle or an object, null when it has no window of its own.
    static WindowWidget* find(HWND window);
    static WindowWidget* of(const CWnd& window);

    /// Sends WM_CREATE, then places and shows the window; false, and the window is gone, when a handler
    /// refused.
    bool create(CREATESTRUCT cs);

    /// Null once the window has ended.
    CWnd* owner() const { return owner_; }
    HWND handle() const { return handle_; }

    QRect clientArea() const override { return rect(); }
    /// The window's rectangle on the screen, borders and caption included.
    virtual QRect outerRect() const { return {mapToGlobal(QPoint(0, 0)), size()}; }
    /// Moves and sizes the window: in the parent's client area, or on the screen when it has no parent.
    virtual void place(const QRect& rect);
    /// Shows or hides it (SW_…).
    virtual void showAs(int showCommand);

    /// Has the window repainted when the program is next idle.
    virtual void invalidate(bool erase) = 0;

    /// Gives the content its place and tells WM_SIZE, if the size is another than that told last. Called by
    /// Qt's resize events, and after moves of a hidden window, which gets none.
    void sizeChanged();

    /// Sends a message to the owner through the window table.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    void setTimer(UINT id, int milliseconds);
    void killTimer(UINT id) { timers_.erase(id); }

    /// Ends the window: the handle and the owner's hold on it go at once, the widget itself when no event of
    /// its own can be running any more.
    virtual void end();
    /// True while WM_DESTROY is on its way to the window and its children.
    bool ending = false;

    /// The cursor on show: a resource id, 0 for the arrow, nothing when none was set.
    std::optional<UINT> shownCursor;

  protected:
    /// Size type of WM_SIZE.
    virtual UINT sizeType() const { return SIZE_RESTORED; }
    /// Fits what the widget contains to its new size.
    virtual void fitContent() {}

    void resizeEvent(QResizeEvent*) override { sizeChanged(); }
    void timerEvent(QTimerEvent* event) override;

  private:
    struct Size {
        UINT type;
        QSize client;
        bool operator==(const Size&) const = default;
    };

    void leave();

    CWnd* owner_;
    HWND handle_;
    std::optional<Size> told_;
    std::map<UINT, QBasicTimer> timers_;
};

/// If the focus is in the widget or below it, gives it to the nearest window above: what Qt would choose when
/// the widget goes is any control that takes the tabulator.
void moveFocusOut(QWidget& widget);

}  // namespace platform
