#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/files/FileHandle.h"
#include "platform/files/FileSystem.h"

namespace platform {

/// A text file read as the platform's C runtime reads one: CR LF becomes LF, and byte 0x1A ends the file.
class TextReader {
  public:
    /// Opens a file by DOS path; nothing when there is none or it cannot be read.
    static std::optional<TextReader> open(const FileSystem& files, std::string_view dosPath);
    /// Opens a file by host path; nothing when there is none or it cannot be read.
    static std::optional<TextReader> open(const std::filesystem::path& path);

    /// Reads a line as `fgets` does: at most `limit` − 1 bytes, to the end of the line, its LF kept, and puts
    /// a NUL after them. Returns the number of bytes before that NUL, so NUL bytes of the file itself are
    /// kept; 0 at the end of the file or after a read error. `limit` is at least 2.
    std::size_t readLine(char* buffer, std::size_t limit);

  private:
    explicit TextReader(FileHandle file);
    static std::optional<TextReader> open(FileHandle file);
    bool fill();

    /// A part of a line, without its line end.
    struct Part {
        std::string_view text;
        bool endsLine;
    };
    /// The next part from the block, which is not empty. With its line end it takes up at most `room` bytes.
    Part takePart(std::size_t room);

    FileHandle file_;
    std::unique_ptr<char[]> block_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
    bool heldCr_ = false;
    bool atEnd_ = false;
    bool failed_ = false;
};

}  // namespace platform
