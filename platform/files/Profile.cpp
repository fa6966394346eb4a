#include "platform/files/Profile.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/ReplaceFile.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/Trimmed.h"

namespace platform {

namespace {

/// No INI file is longer; a longer file is something else and is left alone.
constexpr std::size_t maxFileBytes = 1 << 20;

/// Line ends too: lines are kept with theirs.
constexpr std::string_view blanks = " \t\r\n";

/// Lines with their line ends.
std::vector<std::string> splitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t lineFeed = text.find('\n');
        const std::size_t length = lineFeed == text.npos ? text.size() : lineFeed + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

/// The name in brackets, when the line is a section's head.
std::optional<std::string_view> sectionName(std::string_view line) {
    const std::string_view text = trimmed(line, blanks);
    const std::size_t end = text.find(']');
    if (!text.starts_with('[') || end == text.npos) return std::nullopt;
    return trimmed(text.substr(1, end - 1), blanks);
}

bool isSection(std::string_view line, std::string_view section) {
    const auto name = sectionName(line);
    return name && equalsNoCase(*name, section);
}

bool hasKey(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    return equals != line.npos && equalsNoCase(trimmed(line.substr(0, equals), blanks), key);
}

void endLine(std::string& line) {
    if (!line.ends_with('\n')) line += "\r\n";
}

void insertLine(std::vector<std::string>& lines, std::size_t at, std::string line) {
    if (at > 0) endLine(lines[at - 1]);
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), std::move(line));
}

/// Sets the key in the section whose first line after the head is `first`.
void setInSection(std::vector<std::string>& lines, std::size_t first, std::string_view key,
                  std::string line) {
    std::size_t afterLastText = first;
    for (std::size_t i = first; i < lines.size() && !sectionName(lines[i]); ++i) {
        if (hasKey(lines[i], key)) {
            lines[i] = std::move(line);
            return;
        }
        if (!trimmed(lines[i], blanks).empty()) afterLastText = i + 1;
    }
    insertLine(lines, afterLastText, std::move(line));
}

void setKey(std::vector<std::string>& lines, std::string_view section, std::string_view key,
            std::string line) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (isSection(lines[i], section)) return setInSection(lines, i + 1, key, std::move(line));
    }
    insertLine(lines, lines.size(), std::string(1, '[').append(section).append("]\r\n"));
    lines.push_back(std::move(line));
}

}  // namespace

bool writeProfileString(const FileSystem& files, std::string_view dosPath, std::string_view section,
                        std::string_view key, std::string_view value) {
    std::string content;
    if (!files.isMissing(dosPath)) {
        auto old = files.readAll(dosPath, maxFileBytes);
        if (!old) return false;
        content = std::move(*old);
    }
    auto lines = splitLines(content);
    setKey(lines, section, key, std::string(key) + "=" + std::string(value) + "\r\n");
    content.clear();
    for (const auto& line : lines) content += line;
    return replaceFile(files, dosPath, content);
}

}  // namespace platform
