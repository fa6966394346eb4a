#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// The virtual key number of a Qt key (Qt::Key). A letter of the Greek keyboard has the number of the Latin
/// letter on the same key, which accelerators expect. All other characters share one number, and so do all
/// other keys, dead ones such as the Greek tonos among them.
UINT virtualKey(int qtKey);

}  // namespace platform
