#pragma once

#include "platform/windows/CmdTarget.h"

namespace platform {

/// The document of a single-document program.
class CDocument : public CCmdTarget {};

}  // namespace platform
