#pragma once

#include <cstdint>

namespace platform {

class CWnd;

/// Waits. Windows are painted meanwhile, but input of the user is not handled until the end. With virtual
/// time it does not wait, but the clock advances.
void Sleep(std::uint32_t milliseconds);

/// Waits until the window system shows a window that was just made visible.
void UpdateWindow(CWnd& window);

}  // namespace platform
