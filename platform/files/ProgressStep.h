#pragma once

#include <cstdint>
#include <functional>

namespace platform {

/// Told by a long operation how much of it is done, and of how much (0 where that is not known); false when
/// the user has cancelled it.
using ProgressStep = std::function<bool(std::uint64_t done, std::uint64_t total)>;

/// The same where nobody may be listening.
inline bool GoesOn(const ProgressStep& step, std::uint64_t done, std::uint64_t total) {
    return !step || step(done, total);
}

}  // namespace platform
