#include "platform/plugins/ProcessTurns.h"

#include "platform/plugins/ConversionLimits.h"
#include "platform/plugins/ProcessStream.h"

namespace platform {

ProcessTurns& ProcessTurns::instance() {
    static ProcessTurns turns;
    return turns;
}

bool ProcessTurns::enter(ProcessStream& stream) {
    if (running_.size() >= conversion::maxRunning) {
        if (waiting_.size() >= conversion::maxWaiting) return false;
        waiting_.push_back(&stream);
        return true;
    }
    running_.push_back(&stream);
    stream.begin();
    return true;
}

void ProcessTurns::leave(ProcessStream& stream) {
    std::erase(waiting_, &stream);
    if (std::erase(running_, &stream) == 0 || waiting_.empty()) return;
    ProcessStream* const next = waiting_.front();
    waiting_.erase(waiting_.begin());
    running_.push_back(next);
    next->begin();
}

}  // namespace platform
