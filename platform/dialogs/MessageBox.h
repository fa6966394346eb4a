#pragma once

#include <string_view>

#include "platform/machine/BoxAnswer.h"

namespace platform {

/// Buttons of a message box.
enum class BoxButtons { ok, yesNo };
enum class BoxIcon { none, question };

/// A plain message box with the application's title; `text` in code page 1253. When the machine has answers
/// ready, nothing is shown and the next one is taken. Either way the box is recorded in the trace.
BoxAnswer AfxMessageBox(std::string_view text, BoxButtons buttons = BoxButtons::ok);
/// The same with a caption of its own, code page 1253.
BoxAnswer MessageBox(std::string_view text, std::string_view caption, BoxButtons buttons = BoxButtons::ok,
                     BoxIcon icon = BoxIcon::none);

}  // namespace platform
