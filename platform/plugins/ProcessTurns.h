#pragma once

#include <vector>

namespace platform {

class ProcessStream;

/// Lets a few programs run at the same time, and the others wait for their turn (see ConversionLimits.h). For
/// the thread of the windows only.
class ProcessTurns {
  public:
    static ProcessTurns& instance();

    /// Begins the stream's program now or when one before it has left; false when too many wait.
    bool enter(ProcessStream& stream);

    /// The stream's program has ended, or is not wanted any more.
    void leave(ProcessStream& stream);

  private:
    ProcessTurns() = default;

    std::vector<ProcessStream*> running_;
    std::vector<ProcessStream*> waiting_;
};

}  // namespace platform
