#pragma once

#include <sys/types.h>

#include <filesystem>

namespace contentc {

/// The program that shows a data folder, as a process of its own. It shows its page anew when the folder is
/// replaced.
class ShownProgram {
  public:
    /// Starts it; says why not on standard error. `program` is empty when it is not installed beside this
    /// one: then it is looked for in the path.
    ShownProgram(const std::filesystem::path& program, const std::filesystem::path& dataFolder);

    bool isStarted() const { return process_ > 0; }
    /// Whether it has not been closed yet.
    bool isRunning();
    /// Waits until it is closed.
    void wait();

  private:
    pid_t process_ = -1;
};

}  // namespace contentc
