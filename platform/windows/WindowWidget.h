#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <map>
#include <optional>

#include "platform/base/Messages.h"
#include "platform/qt/ClientArea.h"
#include "platform/windows/Wnd.h"

namespace platform {

/// The widget of a CWnd's window. It is in the window table as long as the window exists, and knows the
/// window's object.
class WindowWidget : public QWidget, public HasClientArea {
  public:
    /// Makes the widget, hidden, and gives `owner` its handle.
    WindowWidget(CWnd& owner, QWidget* parent, int controlId);
    ~WindowWidget() override;

    /// The widget of a handle or an object, null when that has no window of this kind.
    static WindowWidget* find(HWND window);
    static WindowWidget* of(const CWnd& window);

    /// Sends WM_CREATE, then places and shows the window. False when a handler refused; the window is then
    /// gone.
    bool create(CREATESTRUCT cs);

    /// The window's object, null when the window has ended.
    CWnd* owner() const { return owner_; }
    HWND handle() const { return handle_; }

    QRect clientArea() const override { return rect(); }
    /// The window's rectangle on the screen, borders and caption included.
    virtual QRect outerRect() const { return {mapToGlobal(QPoint(0, 0)), size()}; }
    /// Moves and sizes the window: in the parent's client area, or on the screen when it has no parent.
    virtual void place(const QRect& rect);
    /// Shows or hides the window (SW_…).
    virtual void showAs(int showCommand);

    /// Has the window repainted when the program is next idle.
    virtual void invalidate(bool erase) = 0;

    /// Lays out the content and sends WM_SIZE if the size differs from the one sent last. Called by Qt's
    /// resize events, and after moves of a hidden window, which get no such event.
    void sizeChanged();

    /// Sends a message to the owner through the window table.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    void setTimer(UINT id, int milliseconds);
    void killTimer(UINT id) { timers_.erase(id); }

    /// Ends the window: the handle and the link to the object are removed at once. The widget is deleted
    /// later, since an event of it may be running.
    virtual void end();
    /// WM_DESTROY is being sent to the window and its children.
    bool ending = false;

    /// The cursor that is shown: a resource id, 0 for the arrow; nothing when none was set.
    std::optional<UINT> shownCursor;

  protected:
    /// The size type for WM_SIZE.
    virtual UINT sizeType() const { return SIZE_RESTORED; }
    /// Fits the content of the widget to its new size.
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

/// If the widget or a child of it has the focus, gives the focus to the nearest window above. Qt would give
/// it to any control that takes the tabulator.
void moveFocusOut(QWidget& widget);

}  // namespace platform
