#pragma once

#include <memory>
#include <string_view>

#include "platform/components/ComponentHost.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

/// The window of a hosted control; the control's widget fills it.
class ComponentContainer : public WindowWidget {
  public:
    ComponentContainer(CWnd& owner, QWidget* parent, int controlId);
    ~ComponentContainer() override;

    /// Creates the control; its events go to the parent object. False when the class cannot be created.
    bool createControl(std::string_view classId);
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

/// The host of the control in this window, null when it holds none.
ComponentHost* componentHostOf(HWND window);

}  // namespace platform
