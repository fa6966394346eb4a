#include "platform/windows/ComponentContainer.h"

#include <QKeyEvent>

#include "platform/input/TabOrder.h"
#include "platform/qt/WindowTable.h"

namespace platform {

ComponentContainer::ComponentContainer(CWnd& owner, QWidget* parent, int componentId)
    : WindowWidget(owner, parent, componentId) {
    // Otherwise the parent's cursor would show over the component.
    setCursor(Qt::ArrowCursor);
}

ComponentContainer::~ComponentContainer() = default;

bool ComponentContainer::createComponent(std::string_view classId) {
    const HWND parent = WindowTable::instance().nearestHandle(parentWidget());
    const int componentId = WindowTable::instance().find(handle())->id;
    host_ = ComponentHost::create(classId, this, [=](std::int32_t dispid, std::span<Variant> arguments) {
        if (CWnd* const receiver = CWnd::FromHandle(parent))
            receiver->OnEvent(componentId, dispid, arguments);
    });
    if (!host_) return false;
    setFocusProxy(&host_->component().widget());
    return true;
}

void ComponentContainer::invalidate(bool) {
    update();
    if (host_) host_->component().widget().update();
}

void ComponentContainer::end() {
    host_.reset();
    WindowWidget::end();
}

void ComponentContainer::fitContent() {
    if (host_) host_->component().widget().setGeometry(rect());
}

void ComponentContainer::moveEvent(QMoveEvent* event) {
    WindowWidget::moveEvent(event);
    if (!isInSight(*this)) moveFocusOut(*this);
}

// A key that the component ignores must not go to the parent.
void ComponentContainer::keyPressEvent(QKeyEvent* event) { event->accept(); }

void ComponentContainer::keyReleaseEvent(QKeyEvent* event) { event->accept(); }

ComponentHost* componentHostOf(HWND window) {
    auto* const container = dynamic_cast<ComponentContainer*>(WindowWidget::find(window));
    return container ? container->host() : nullptr;
}

}  // namespace platform
