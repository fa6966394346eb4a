#pragma once

#include <span>

#include "platform/base/Resources.h"

namespace kalyxo {

/// The texts that the program shows by id.
std::span<const platform::StringResource> StringTable();

}  // namespace kalyxo
