#pragma once

#include <span>

#include "platform/base/DialogTemplate.h"

namespace kalyxo {

/// The program's dialogs.
std::span<const platform::DialogTemplate> DialogTable();

}  // namespace kalyxo
