#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "platform/base/Messages.h"

namespace drive {

/// Windows that scripts call by a name.
enum class NamedWindow { view, frame, panel, splitter };

/// A window by its control id: a control of the active dialog, else a window in the view.
struct IdName {
    int id = 0;
    friend bool operator==(const IdName&, const IdName&) = default;
};

/// A window by its handle.
struct HandleName {
    platform::HWND handle = 0;
    friend bool operator==(const HandleName&, const HandleName&) = default;
};

/// The window that a script means by WINDOW.
using WindowName = std::variant<NamedWindow, IdName, HandleName>;

/// Reads `view`, `frame`, `panel`, `splitter`, `#ID` or a handle number; nothing for any other word.
std::optional<WindowName> windowNameOf(std::string_view word);

}  // namespace drive
