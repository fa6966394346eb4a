#include "platform/files/TextReader.h"

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t readBlockSize = std::size_t{32} * 1024;
constexpr char endMark = 0x1A;

const char* find(const char* begin, const char* end, char wanted) {
    return static_cast<const char*>(std::memchr(begin, wanted, static_cast<std::size_t>(end - begin)));
}

/// Drops each CR that stands before an LF and returns the new length. The block does not end with a CR unless
/// the file does.
std::size_t joinLineEnds(char* block, std::size_t size) {
    const char* const end = block + size;
    const char* from = find(block, end, '\r');
    if (!from) return size;
    char* to = block + (from - block);
    while (from) {
        const char* const kept = from + 1 < end && from[1] == '\n' ? from + 1 : from;
        const char* const next = find(from + 1, end, '\r');
        const auto run = static_cast<std::size_t>((next ? next : end) - kept);
        std::memmove(to, kept, run);
        to += run;
        from = next;
    }
    return static_cast<std::size_t>(to - block);
}

}  // namespace

TextReader::TextReader(FileHandle file)
    : file_(std::move(file)), block_(std::make_unique_for_overwrite<char[]>(readBlockSize)) {}

std::optional<TextReader> TextReader::open(FileHandle file) {
    if (!file) return std::nullopt;
    TextReader reader(std::move(file));
    // A medium that is damaged shows itself only when the file is read.
    if (!reader.fill() && reader.failed_) return std::nullopt;
    return reader;
}

std::optional<TextReader> TextReader::open(const FileSystem& files, std::string_view dosPath) {
    return open(files.openForReading(dosPath));
}

std::optional<TextReader> TextReader::open(const std::filesystem::path& path) {
    return open(FileHandle::openForReading(path));
}

bool TextReader::fill() {
    next_ = end_ = 0;
    while (end_ == 0 && !atEnd_) {
        // A CR at the end of a block waits for the byte after it.
        const std::size_t kept = heldCr_ ? 1 : 0;
        if (heldCr_) block_[0] = '\r';
        const auto got = file_.read(block_.get() + kept, readBlockSize - kept);
        failed_ = !got;
        atEnd_ = got.value_or(0) == 0;
        end_ = kept + got.value_or(0);
        if (const char* mark = find(block_.get() + kept, block_.get() + end_, endMark)) {
            end_ = static_cast<std::size_t>(mark - block_.get());
            atEnd_ = true;
        }
        heldCr_ = !atEnd_ && block_[end_ - 1] == '\r';
        if (heldCr_) --end_;
        end_ = joinLineEnds(block_.get(), end_);
    }
    return end_ > 0;
}

std::size_t TextReader::readLine(char* buffer, std::size_t limit) {
    if (limit == 0) return 0;
    std::size_t length = 0;
    bool complete = false;
    while (!complete && length < limit - 1 && (next_ < end_ || fill())) {
        const char* const from = block_.get() + next_;
        const char* const to = from + std::min(end_ - next_, limit - 1 - length);
        const char* const lineFeed = find(from, to, '\n');
        complete = lineFeed != nullptr;
        const auto run = static_cast<std::size_t>((complete ? lineFeed + 1 : to) - from);
        std::memcpy(buffer + length, from, run);
        length += run;
        next_ += run;
    }
    buffer[length] = '\0';
    return length;
}

}  // namespace platform
