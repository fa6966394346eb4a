#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/files/FileSystem.h"

/// A C: and a D: drive in a temporary folder of their own, removed at the end.
class TestDrives {
  public:
    TestDrives() : m_root(std::filesystem::temp_directory_path() / uniqueName()) {
        std::filesystem::create_directories(m_root / "c");
        std::filesystem::create_directories(m_root / "d");
        files.setDrives({{'C', platform::DriveType::fixed, m_root / "c"},
                         {'D', platform::DriveType::cdrom, m_root / "d"}});
    }
    ~TestDrives() { std::filesystem::remove_all(m_root); }
    TestDrives(const TestDrives&) = delete;
    TestDrives& operator=(const TestDrives&) = delete;

    /// Writes a file, and the folders above it.
    void put(const std::string& dosPath, const std::string& bytes) {
        const std::filesystem::path path = host(dosPath);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    /// The bytes of a file; a text that no test writes when there is none.
    std::string get(const std::string& dosPath) const {
        std::ifstream in(host(dosPath), std::ios::binary);
        if (!in) return "<no such file>";
        return {std::istreambuf_iterator<char>(in), {}};
    }
    bool has(const std::string& dosPath) const { return std::filesystem::exists(host(dosPath)); }
    std::filesystem::path host(const std::string& dosPath) const {
        std::string rest = dosPath.substr(3);
        for (char& c : rest) {
            if (c == '\\') c = '/';
        }
        return m_root / (dosPath[0] == 'C' ? "c" : "d") / rest;
    }

    platform::FileSystem files;

  private:
    static std::string uniqueName() {
        static int count = 0;
        return "kalyxo-test-" + std::to_string(::getpid()) + "-" + std::to_string(++count);
    }
    std::filesystem::path m_root;
};
