#pragma once

namespace platform {

class WindowWidget;

/// Sends WM_DESTROY to the window and then to its children, and ends them all. False when the window is being
/// destroyed already.
bool destroyWindow(WindowWidget& window);

}  // namespace platform
