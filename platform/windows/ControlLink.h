#pragma once

#include <QObject>
#include <string>

#include "platform/base/ControlMessages.h"

class QWidget;

namespace platform {

class CWnd;

/// Stands behind each standard control: passes what it tells to the window around it, and its own messages to
/// the object that the program has bound to it, if any.
class ControlLink : public QObject {
  public:
    /// Belongs to `control`; made by enter.
    explicit ControlLink(QWidget& control);
    ~ControlLink() override;

    /// Enters the control in the window table; it belongs to `control` from then on.
    static ControlLink& enter(QWidget& control, std::string className, int id);
    /// The link of a control, null for any other window.
    static ControlLink* of(const QWidget* control);
    static ControlLink* of(HWND control);

    /// Makes it the window of `object`, which has none.
    void bind(CWnd& object);
    /// Takes the object away again.
    void unbind();
    CWnd* object() const { return object_; }
    HWND handle() const { return handle_; }

    /// Sends WM_COMMAND with this code to the window around the control.
    void command(int code);
    /// Sends WM_NOTIFY, its header filled in here; whether it was handled.
    bool notify(NMHDR& header, int code);

    /// Has the control treat the message that its object is looking at.
    void leaveToControl() { left_ = true; }
    /// Takes the object and the handle away, as the end of a window does; the widget lives on.
    void detach();

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    QWidget& control_;
    HWND handle_ = 0;
    CWnd* object_ = nullptr;
    bool left_ = false;
};

/// Sends a control's command, unless it has no link any more.
void sendCommand(const QWidget& control, int code);
/// Sends a notification without further content; whether it was handled.
bool sendNotification(const QWidget& control, int code);
template <class Notification>
bool sendNotification(const QWidget& control, int code, Notification& notification) {
    ControlLink* const link = ControlLink::of(&control);
    return link && link->notify(notification, code);
}

}  // namespace platform
