#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace scenario {

/// A driver with pipes to its standard input and output.
class DriverProcess {
  public:
    /// `arguments[0]` is the program's path; it runs in `folder`.
    DriverProcess(const std::vector<std::string>& arguments, const std::filesystem::path& folder);
    /// Ends a process that still runs.
    ~DriverProcess();
    DriverProcess(const DriverProcess&) = delete;
    DriverProcess& operator=(const DriverProcess&) = delete;

    /// Writes a line and waits for the one that answers it; nothing when the process ends or takes longer
    /// than a minute.
    std::optional<std::string> Ask(const std::string& line);
    /// Whether a library whose file is called so, as far as `name` goes, is in the process.
    bool HasLoaded(const std::string& name) const;
    /// Closes its input and waits for its end: the exit status, or 128 and the signal's number.
    int Finish();

  private:
    std::optional<std::string> readLine();

    pid_t m_pid = -1;
    int m_input = -1;
    int m_output = -1;
    std::string m_read;  // bytes behind the last line
};

}  // namespace scenario
