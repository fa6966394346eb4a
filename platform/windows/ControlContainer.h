#pragma once

#include <memory>
#include <string_view>

#include "platform/automation/ControlHost.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

/// The window of a hosted control; the control's widget fills it.
class ControlContainer : public WindowWidget {
  public:
    ControlContainer(CWnd& owner, QWidget* parent, int controlId);
    ~ControlContainer() override;

    /// Creates the control; its events go to the parent object. False when the class cannot be created.
    bool createControl(std::string_view classId);
    ControlHost* host() { return host_.get(); }

    void invalidate(bool erase) override;
    void end() override;

  protected:
    void fitContent() override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    std::unique_ptr<ControlHost> host_;
};

/// The host of the control in this window, null when it holds none.
ControlHost* controlHostOf(HWND window);

}  // namespace platform
