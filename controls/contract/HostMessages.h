#pragma once

#include "platform/base/Messages.h"

/// What components and their host tell each other by window messages.
namespace controls {

/// From the host to the browse selection's auxiliary window: Enter was pressed in the text field.
inline constexpr platform::UINT enterInSelectEdit = 18871;
/// From a component to the host's window, as the second parameter of WM_COMMAND: show the page's video or
/// molecule large.
inline constexpr platform::LPARAM showEnlargedView = 9821;

}  // namespace controls
