#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/files/FileHandle.h"
#include "platform/files/FileSystem.h"

namespace platform {

/// A text file written as the platform's C runtime writes one: LF becomes CR LF.
class TextWriter {
  public:
    /// Creates the file, or empties an existing one, by DOS path; nothing when that fails.
    static std::optional<TextWriter> open(const FileSystem& files, std::string_view dosPath);
    /// The same by host path.
    static std::optional<TextWriter> open(const std::filesystem::path& path);

    TextWriter(TextWriter&&) noexcept = default;
    TextWriter& operator=(TextWriter&&) = delete;
    /// Writes out what is left and closes the file.
    ~TextWriter();

    /// Adds text; not after `close`. A failure of the medium is told by `close`.
    void write(std::string_view text);
    /// The same for one line, in which an LF may be the last byte only.
    void writeLine(std::string_view line);

    /// Writes out what is left and closes the file; whether all that was given has been written.
    bool close();

  private:
    explicit TextWriter(FileHandle file);
    static std::optional<TextWriter> open(FileHandle file);
    void append(std::string_view bytes);
    void flush();

    FileHandle file_;
    std::unique_ptr<char[]> block_;
    std::size_t used_ = 0;
    bool failed_ = false;
};

}  // namespace platform
