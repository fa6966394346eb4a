#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// The virtual key number of a Qt key (Qt::Key), 0 if it has none here. A letter of the Greek keyboard has
/// the number of the Latin letter on the same key, which accelerators expect. All other characters share one
/// number.
UINT virtualKey(int qtKey);

}  // namespace platform
