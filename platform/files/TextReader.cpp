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
    }
    return end_ > 0;
}

TextReader::Part TextReader::takePart(std::size_t room) {
    const char* const from = block_.get() + next_;
    // One byte more than there is room for, since the CR of a CR LF is not counted.
    const char* const lineFeed = find(from, from + std::min(end_ - next_, room + 1), '\n');
    const bool hasCr = lineFeed != nullptr && lineFeed > from && lineFeed[-1] == '\r';
    const char* const textEnd = lineFeed != nullptr ? lineFeed - (hasCr ? 1 : 0) : from + (end_ - next_);
    const std::size_t length = std::min(static_cast<std::size_t>(textEnd - from), room);
    const bool complete = lineFeed != nullptr && length < room;
    next_ = complete ? static_cast<std::size_t>(lineFeed + 1 - block_.get()) : next_ + length;
    return {{from, length}, complete};
}

std::size_t TextReader::readLine(char* buffer, std::size_t limit) {
    if (limit == 0) return 0;
    std::size_t length = 0;
    bool complete = false;
    while (!complete && length < limit - 1 && (next_ < end_ || fill())) {
        const Part part = takePart(limit - 1 - length);
        std::memcpy(buffer + length, part.text.data(), part.text.size());
        length += part.text.size();
        complete = part.endsLine;
        if (complete) buffer[length++] = '\n';
    }
    buffer[length] = '\0';
    return length;
}

}  // namespace platform
