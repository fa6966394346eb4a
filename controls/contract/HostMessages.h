#pragma once

#include "platform/base/Messages.h"

/// What components and their host tell each other by window messages. 9822 and 9823 are the view's own.
namespace controls {

/// From the host to the browse selection's auxiliary window: Enter was pressed in the text field.
inline constexpr platform::UINT enterInSelectEdit = 18871;
/// From a component to the host's window, as the second parameter of WM_COMMAND: show the page's video or
/// molecule large.
inline constexpr platform::LPARAM showEnlargedView = 9821;

/// From the browse selection to the host's window, likewise: go to the section whose code is the first
/// parameter, without opening a page. The choice of a page follows as an event.
inline constexpr platform::LPARAM openSection = 9824;
/// From the browse selection to the host's window, likewise: open the word search. The first parameter is the
/// address of a std::string with the text to begin with, in code page 1253.
inline constexpr platform::LPARAM searchWord = 9825;

}  // namespace controls
