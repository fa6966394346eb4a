#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

#include "tests/support/TestFolder.h"

/// A C: and a D: drive in a temporary folder of their own, removed at the end.
class TestDrives {
  public:
    TestDrives() {
        for (const char* drive : {"c", "d"}) std::filesystem::create_directories(m_root / drive);
        files.setDrives({{'C', platform::DriveType::fixed, m_root / "c"},
                         {'D', platform::DriveType::cdrom, m_root / "d"}});
    }

    /// Writes a file, and the folders above it.
    void put(const std::string& dosPath, const std::string& bytes) { m_root.write(name(dosPath), bytes); }
    /// The bytes of a file; a text that no test writes when there is none.
    std::string get(const std::string& dosPath) const { return m_root.read(name(dosPath)); }
    bool has(const std::string& dosPath) const { return std::filesystem::exists(host(dosPath)); }
    std::filesystem::path host(const std::string& dosPath) const { return m_root / name(dosPath); }

    platform::FileSystem files;

  private:
    static std::string name(const std::string& dosPath) {
        std::string path = dosPath.substr(3);
        std::ranges::replace(path, '\\', '/');
        return (dosPath[0] == 'C' ? "c/" : "d/") + path;
    }
    TestFolder m_root;
};
