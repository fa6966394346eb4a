#pragma once

#include <memory>
#include <string_view>

#include "platform/components/ComponentHost.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

/// The window of a hosted component, which the component's widget fills.
class ComponentContainer : public WindowWidget {
  public:
    ComponentContainer(CWnd& owner, QWidget* parent, int componentId);
    ~ComponentContainer() override;

    /// Creates the component. Its events go to the parent's object. False when the class cannot be created.
    bool createComponent(std::string_view classId);
    ComponentHost* host() { return host_.get(); }

    void invalidate(bool erase) override;
    void end() override;

  protected:
    void fitContent() override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    std::unique_ptr<ComponentHost> host_;
};

/// The host of the component in this window, null when there is none.
ComponentHost* componentHostOf(HWND window);

}  // namespace platform
