#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

#include "tests/support/TestFolder.h"

/// Drives C: and D: in a temporary folder, which is removed at the end.
class TestDrives {
  public:
    TestDrives() {
        for (const char* drive : {"c", "d"}) std::filesystem::create_directories(root_ / drive);
        files.setDrives(
            {{'C', platform::DriveType::fixed, root_ / "c"}, {'D', platform::DriveType::cdrom, root_ / "d"}});
    }

    /// Writes a file, and makes the folders above it.
    void put(const std::string& dosPath, const std::string& bytes) { root_.write(name(dosPath), bytes); }
    /// The bytes of a file; if there is none, a text that no test writes.
    std::string get(const std::string& dosPath) const { return root_.read(name(dosPath)); }
    bool has(const std::string& dosPath) const { return std::filesystem::exists(host(dosPath)); }
    std::filesystem::path host(const std::string& dosPath) const { return root_ / name(dosPath); }

    platform::FileSystem files;

  private:
    static std::string name(const std::string& dosPath) {
        std::string path = dosPath.substr(3);
        std::ranges::replace(path, '\\', '/');
        return (dosPath[0] == 'C' ? "c/" : "d/") + path;
    }
    TestFolder root_;
};
