#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/files/FileSystem.h"

/// A folder of the host that lasts as long as the test.
class TestFolder {
  public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    /// Writes a file, with the folders above it, and returns its path.
    std::filesystem::path write(const std::string& name, std::string_view content) const;
    /// The content of a file; a text that no test expects when there is none.
    std::string read(const std::string& name) const;
    /// How many files and folders lie directly in the folder.
    std::size_t count() const;
    /// The folder as drive C:.
    platform::FileSystem asDrive() const;

  private:
    std::filesystem::path path_;
};

/// While it lasts, no file can be written beyond so many bytes, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(std::size_t bytes);
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk();
};
