#pragma once

#include <optional>
#include <string_view>

namespace platform {

/// A button of a message box, by the platform's command ids.
enum class BoxAnswer { ok = 1, cancel = 2, yes = 6, no = 7 };

/// The button's name in scripts and in the trace: "ok", "cancel", "yes", "no".
std::string_view boxAnswerName(BoxAnswer answer);

/// The button of a name, or nothing.
std::optional<BoxAnswer> boxAnswerByName(std::string_view name);

}  // namespace platform
