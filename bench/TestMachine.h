#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/ChildProcess.h"

namespace bench {

inline const std::string kBin = KALYXO_BIN_FOLDER;
inline const std::string kContent = KALYXO_CONTENT_FOLDER;

/// A machine with a compact disc, removed at the end.
class TestMachine {
  public:
    /// `name` tells it from others of the process.
    explicit TestMachine(const std::string& name, const std::string& disc = kContent)
        : m_folder(std::filesystem::temp_directory_path() /
                   ("kalyxo-bench-" + name + std::to_string(::getpid()))) {
        ChildProcess maker({kBin + "/kalyxo-drive", "--new-machine", m_folder, "--data", disc});
        maker.readLine();
    }
    ~TestMachine() { std::filesystem::remove_all(m_folder); }
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    std::string folder() const { return m_folder; }
    std::vector<std::string> driver() const { return {kBin + "/kalyxo-drive", "--machine", m_folder}; }

  private:
    std::filesystem::path m_folder;
};

}  // namespace bench
