#pragma once

namespace platform {
class WebPageInspector;
}

namespace drive {

/// The web browser that is on show, null when there is none.
platform::WebPageInspector* browser();

/// Whether a hosted component is at work and will finish without further input.
bool anyComponentBusy();

}  // namespace drive
