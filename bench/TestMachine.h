#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/ChildProcess.h"

namespace bench {

inline const std::string binFolder = KALYXO_BIN_FOLDER;
inline const std::string contentFolder = KALYXO_CONTENT_FOLDER;

/// A machine with a compact disc, removed at the end.
class TestMachine {
  public:
    /// `name` tells it from others of the process.
    explicit TestMachine(const std::string& name, const std::string& disc = contentFolder)
        : folder_(std::filesystem::temp_directory_path() /
                  ("kalyxo-bench-" + name + std::to_string(::getpid()))) {
        ChildProcess maker({binFolder + "/kalyxo-drive", "--new-machine", folder_, "--data", disc});
        maker.readLine();
    }
    ~TestMachine() { std::filesystem::remove_all(folder_); }
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    std::string folder() const { return folder_; }
    std::vector<std::string> driver() const { return {binFolder + "/kalyxo-drive", "--machine", folder_}; }

  private:
    std::filesystem::path folder_;
};

}  // namespace bench
