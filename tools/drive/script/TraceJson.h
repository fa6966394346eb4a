#pragma once

#include <vector>

#include "platform/machine/Trace.h"
#include "tools/drive/script/Json.h"

namespace drive {

/// The entries as the answer of `trace` lists them: objects with one key that says what happened.
Json traceJson(const std::vector<platform::TraceEntry>& entries);

}  // namespace drive
