#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "platform/base/Messages.h"

namespace drive {

/// Windows that have a name of their own in scripts.
enum class NamedWindow { view, frame, panel, splitter };

/// A control of the active dialog, else of the view, by its id.
struct ControlName {
    int id = 0;
    friend bool operator==(const ControlName&, const ControlName&) = default;
};

/// A window by its handle.
struct HandleName {
    platform::HWND handle = 0;
    friend bool operator==(const HandleName&, const HandleName&) = default;
};

/// What a script means by WINDOW.
using WindowName = std::variant<NamedWindow, ControlName, HandleName>;

/// Reads `view`, `frame`, `panel`, `splitter`, `#ID` or a handle number; nothing for any other word.
std::optional<WindowName> windowNameOf(std::string_view word);

}  // namespace drive
