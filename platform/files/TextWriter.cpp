#include "platform/files/TextWriter.h"

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t writeBlockSize = std::size_t{32} * 1024;

}  // namespace

TextWriter::TextWriter(FileHandle file)
    : file_(std::move(file)), block_(std::make_unique_for_overwrite<char[]>(writeBlockSize)) {}

TextWriter::~TextWriter() { close(); }

std::optional<TextWriter> TextWriter::open(FileHandle file) {
    if (!file) return std::nullopt;
    return TextWriter(std::move(file));
}

std::optional<TextWriter> TextWriter::open(const FileSystem& files, std::string_view dosPath) {
    return open(files.openForWriting(dosPath));
}

std::optional<TextWriter> TextWriter::open(const std::filesystem::path& path) {
    return open(FileHandle::openForWriting(path, true));
}

void TextWriter::write(std::string_view text) {
    while (!text.empty()) {
        const std::size_t lineEnd = std::min(text.find('\n'), text.size() - 1) + 1;
        writeLine(text.substr(0, lineEnd));
        text.remove_prefix(lineEnd);
    }
}

void TextWriter::writeLine(std::string_view line) {
    if (!line.ends_with('\n')) return append(line);
    line.remove_suffix(1);
    append(line);
    append("\r\n");
}

void TextWriter::append(std::string_view bytes) {
    if (bytes.size() > writeBlockSize - used_) flush();
    if (bytes.size() > writeBlockSize) {
        failed_ = failed_ || !file_.write(bytes.data(), bytes.size());
        return;
    }
    std::memcpy(block_.get() + used_, bytes.data(), bytes.size());
    used_ += bytes.size();
}

void TextWriter::flush() {
    failed_ = failed_ || !file_.write(block_.get(), used_);
    used_ = 0;
}

bool TextWriter::close() {
    if (file_) {
        flush();
        failed_ = !file_.close() || failed_;
    }
    return !failed_;
}

}  // namespace platform
