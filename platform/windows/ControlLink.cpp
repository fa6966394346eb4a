#include "platform/windows/ControlLink.h"

#include <QPointer>
#include <utility>

#include "platform/input/InputMessages.h"
#include "platform/qt/ClientArea.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/InputDelivery.h"
#include "platform/windows/Wnd.h"

namespace platform {

namespace {

WindowTable& table() { return WindowTable::instance(); }

}  // namespace

ControlLink::ControlLink(QWidget& control) : QObject(&control), control_(control) {
    control.installEventFilter(this);
    if (QWidget& inside = mouseWidgetOf(control); &inside != &control) inside.installEventFilter(this);
}

ControlLink::~ControlLink() { detach(); }

ControlLink& ControlLink::enter(QWidget& control, std::string className, int id) {
    auto& link = makeQtChild<ControlLink>(control);
    link.handle_ = table().add({
        .widget = &control,
        .className = std::move(className),
        .id = id,
        .proc = [link = QPointer<ControlLink>(&link)](UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            return link && link->object_ ? link->object_->WindowProc(message, wParam, lParam) : 0;
        },
    });
    return link;
}

ControlLink* ControlLink::of(const QWidget* control) {
    if (!control) return nullptr;
    for (QObject* const child : control->children()) {
        if (auto* const link = dynamic_cast<ControlLink*>(child)) return link;
    }
    return nullptr;
}

ControlLink* ControlLink::of(HWND control) { return of(table().widget(control)); }

void ControlLink::bind(CWnd& object) {
    object_ = &object;
    object.handle_ = handle_;
}

void ControlLink::unbind() {
    if (object_) object_->handle_ = 0;
    object_ = nullptr;
}

void ControlLink::detach() {
    unbind();
    table().remove(std::exchange(handle_, 0));
}

void ControlLink::command(int code) {
    const WindowEntry* const entry = table().find(handle_);
    if (!entry) return;
    table().send(table().nearestHandle(control_.parentWidget()), WM_COMMAND, controlCode(entry->id, code),
                 handle_);
}

bool ControlLink::notify(NMHDR& header, int code) {
    const WindowEntry* const entry = table().find(handle_);
    if (!entry) return false;
    header.hwndFrom = handle_;
    header.idFrom = entry->id;
    header.code = code;
    table().send(table().nearestHandle(control_.parentWidget()), WM_NOTIFY, static_cast<WPARAM>(entry->id),
                 reinterpret_cast<LPARAM>(&header));
    return header.handled;
}

bool ControlLink::eventFilter(QObject* receiver, QEvent* event) {
    if (!object_ || (isMouseEvent(event->type()) && receiver != &mouseWidgetOf(control_))) return false;
    const std::optional<MSG> message = inputMessageFor(*event, handle_);
    if (!message) return false;
    left_ = false;
    const QPointer<ControlLink> self(this);
    deliverInput(*message);
    return !self || !left_;
}

void sendCommand(const QWidget& control, int code) {
    if (ControlLink* const link = ControlLink::of(&control)) link->command(code);
}

bool sendNotification(const QWidget& control, int code) {
    NMHDR header;
    return sendNotification(control, code, header);
}

}  // namespace platform
