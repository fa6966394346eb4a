#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// The virtual key number of a Qt key (Qt::Key), 0 for a key that has none here. Letters of the Greek
/// keyboard have the number of the Latin letter on the same key, as accelerators expect; all other characters
/// share one number.
UINT virtualKey(int qtKey);

}  // namespace platform
