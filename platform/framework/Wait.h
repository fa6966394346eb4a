#pragma once

#include <cstdint>

namespace platform {

class CWnd;

/// Lets time pass while windows are painted, but nothing that the user does is looked at. With the machine's
/// virtual time the wait is only noted.
void Sleep(std::uint32_t milliseconds);

/// Has the window system show at once what was drawn in a window that was just shown.
void UpdateWindow(CWnd& window);

}  // namespace platform
