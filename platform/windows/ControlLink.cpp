#include "platform/windows/ControlLink.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <utility>

#include "platform/automation/QtChild.h"
#include "platform/handles/WindowTable.h"
#include "platform/windows/InputMessages.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

WindowTable& table() { return WindowTable::instance(); }

bool isMouse(QEvent::Type type) {
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress ||
           type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
}

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
    object.m_hWnd = handle_;
}

void ControlLink::unbind() {
    if (object_) object_->m_hWnd = 0;
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
    if (!object_ || (isMouse(event->type()) && receiver != &mouseWidgetOf(control_))) return false;
    const std::optional<MSG> message = inputMessageFor(*event, handle_);
    if (!message) return false;
    left_ = false;
    const QPointer<ControlLink> self(this);
    deliverInput(*message);
    return !self || !left_;
}

QWidget& mouseWidgetOf(QWidget& widget) {
    auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
    return area ? *area->viewport() : widget;
}

QRect clientAreaOf(const QWidget& widget) {
    if (const auto* const window = dynamic_cast<const WindowWidget*>(&widget)) return window->clientArea();
    const auto* const area = qobject_cast<const QAbstractScrollArea*>(&widget);
    return area ? area->viewport()->geometry() : widget.rect();
}

void sendCommand(const QWidget& control, int code) {
    if (ControlLink* const link = ControlLink::of(&control)) link->command(code);
}

bool sendNotification(const QWidget& control, int code) {
    NMHDR header;
    return sendNotification(control, code, header);
}

}  // namespace platform
