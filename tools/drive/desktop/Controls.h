#pragma once

#include "platform/base/Messages.h"

namespace platform {
class CDialog;
class ComponentHost;
class WebPageInspector;
}  // namespace platform

namespace drive {

/// The dialog that waits for the user, null when there is none.
platform::CDialog* activeDialog();

/// The host of the control in this window, null when it holds none.
platform::ComponentHost* controlIn(platform::HWND window);

/// The web browser that is on show, null when there is none.
platform::WebPageInspector* browser();

/// Whether a hosted control does something that it will finish by itself.
bool anyControlBusy();

}  // namespace drive
