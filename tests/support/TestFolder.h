#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/files/FileSystem.h"

/// A folder of the host that exists during the test.
class TestFolder {
  public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    /// Writes a file, makes the folders above it, and returns its path.
    std::filesystem::path write(const std::string& name, std::string_view content) const;
    /// The content of a file; if there is none, a text that no test expects.
    std::string read(const std::string& name) const;
    /// The number of files and folders directly in the folder.
    std::size_t count() const;
    /// The folder as drive C:.
    platform::FileSystem asDrive() const;

  private:
    std::filesystem::path path_;
};

/// During its lifetime no file can grow beyond so many bytes, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(std::size_t bytes);
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk();
};
