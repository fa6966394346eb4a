#pragma once

#include <cstdint>
#include <functional>

namespace platform {

/// What a long operation calls from time to time, with how much of it is done and how much there is to do (0
/// when that is not known). False when the user has cancelled the operation.
using ProgressStep = std::function<bool(std::uint64_t done, std::uint64_t total)>;

/// Calls the step if there is one; whether the operation is to go on.
inline bool GoesOn(const ProgressStep& step, std::uint64_t done, std::uint64_t total) {
    return !step || step(done, total);
}

}  // namespace platform
