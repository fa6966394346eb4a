#pragma once

namespace platform {

class WindowWidget;

/// Sends WM_DESTROY to the window and then to its children, and ends them all; false when that is under way
/// already.
bool destroyWindow(WindowWidget& window);

}  // namespace platform
