#include "platform/machine/Trace.h"

#include <utility>

namespace platform {

void Trace::record(TraceEntry entry) {
    if (enabled_) entries_.push_back(std::move(entry));
}

std::vector<TraceEntry> Trace::take() { return std::exchange(entries_, {}); }

}  // namespace platform
