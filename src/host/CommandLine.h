#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "platform/base/Result.h"

namespace kalyxo {

/// The arguments behind the program's name.
using Arguments = std::span<const char* const>;

/// The answer to `--help` or `--version`, in UTF-8, when one of them is among the arguments.
std::optional<std::string_view> AnswerTo(Arguments arguments);

/// Whether `--follow` stands behind `--data` and its folder: what is on show is to be shown anew when the
/// folder changes.
bool FollowsContent(Arguments arguments);

/// The host's folder whose content `--data` has shown in this run; empty without that option. Fails when it
/// holds no content, or when an argument has no place.
platform::Result<std::filesystem::path> GivenDataFolder(Arguments arguments);

}  // namespace kalyxo
