#include "platform/windows/ControlContainer.h"

#include <QKeyEvent>

#include "platform/handles/WindowTable.h"
#include "platform/windows/TabOrder.h"

namespace platform {

ControlContainer::ControlContainer(CWnd& owner, QWidget* parent, int controlId)
    : WindowWidget(owner, parent, controlId) {
    // Otherwise the parent's cursor would show over the control.
    setCursor(Qt::ArrowCursor);
}

ControlContainer::~ControlContainer() = default;

bool ControlContainer::createControl(std::string_view classId) {
    const HWND parent = WindowTable::instance().nearestHandle(parentWidget());
    const int controlId = WindowTable::instance().find(handle())->id;
    host_ = ControlHost::create(classId, this, [=](std::int32_t dispid, std::span<Variant> arguments) {
        if (CWnd* const receiver = CWnd::FromHandle(parent)) receiver->OnEvent(controlId, dispid, arguments);
    });
    if (!host_) return false;
    setFocusProxy(&host_->control().widget());
    return true;
}

void ControlContainer::invalidate(bool) {
    update();
    if (host_) host_->control().widget().update();
}

void ControlContainer::end() {
    host_.reset();
    WindowWidget::end();
}

void ControlContainer::fitContent() {
    if (host_) host_->control().widget().setGeometry(rect());
}

void ControlContainer::moveEvent(QMoveEvent* event) {
    WindowWidget::moveEvent(event);
    if (!isInSight(*this)) moveFocusOut(*this);
}

// A key that the control has no use for is not the parent's.
void ControlContainer::keyPressEvent(QKeyEvent* event) { event->accept(); }

void ControlContainer::keyReleaseEvent(QKeyEvent* event) { event->accept(); }

ControlHost* controlHostOf(HWND window) {
    auto* const container = dynamic_cast<ControlContainer*>(WindowWidget::find(window));
    return container ? container->host() : nullptr;
}

}  // namespace platform
