#pragma once

#include <QObject>
#include <string>

#include "platform/base/ControlMessages.h"

class QWidget;

namespace platform {

class CWnd;

/// Connects a standard control with the program: passes its notifications to the containing window, and its
/// messages to the object that the program has bound to it, if any.
class ControlLink : public QObject {
  public:
    /// Use `enter`. `control` is the Qt parent.
    explicit ControlLink(QWidget& control);
    ~ControlLink() override;

    /// Puts the control into the window table and makes its link, which belongs to `control`.
    static ControlLink& enter(QWidget& control, std::string className, int id);
    /// The link of a control, null for other windows.
    static ControlLink* of(const QWidget* control);
    static ControlLink* of(HWND control);

    /// Makes the control the window of `object`, which must have no window.
    void bind(CWnd& object);
    /// Separates the object from the control.
    void unbind();
    CWnd* object() const { return object_; }
    HWND handle() const { return handle_; }

    /// Sends WM_COMMAND with this code to the containing window.
    void command(int code);
    /// Fills in the header and sends WM_NOTIFY to the containing window; whether it was handled.
    bool notify(NMHDR& header, int code);

    /// Has the control itself handle the message that its object is handling now.
    void leaveToControl() { left_ = true; }
    /// Separates object and handle from the control, as when a window ends; the widget lives on.
    void detach();

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    QWidget& control_;
    HWND handle_ = 0;
    CWnd* object_ = nullptr;
    bool left_ = false;  ///< the object has left its message to the control
};

/// Sends a command of a control; nothing happens when it has no link any more.
void sendCommand(const QWidget& control, int code);
/// Sends a notification that has only the header; whether it was handled.
bool sendNotification(const QWidget& control, int code);
template <class Notification>
bool sendNotification(const QWidget& control, int code, Notification& notification) {
    ControlLink* const link = ControlLink::of(&control);
    return link && link->notify(notification, code);
}

}  // namespace platform
