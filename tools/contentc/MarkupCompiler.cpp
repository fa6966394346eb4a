#include "tools/contentc/MarkupCompiler.h"

#include <algorithm>
#include <cctype>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/MarkMessages.h"

namespace contentc {
namespace {

constexpr std::string_view markStart = "{{";
constexpr std::string_view markEnd = "}}";
constexpr std::string_view linkStart = "[[";
constexpr std::string_view linkEnd = "]]";
constexpr std::string_view linkDelimiter = "~G";
constexpr std::string_view pathEnds = "\"'<> \t#?{";

/// Whether a text can name a video or molecule file.
bool isMediaName(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](unsigned char c) {
        return std::isdigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_';
    });
}

/// Whether a mark must stand on a line of its own.
bool isLineMark(std::string_view name) { return name.starts_with("video") || name.starts_with("molecule"); }

/// A mark as it is written, in UTF-8.
std::string markNamed(std::string_view name) { return "{{" + platform::toUtf8(name) + "}}"; }

bool isToolMark(std::string_view name) { return name.starts_with("tool"); }

}  // namespace

MarkupCompiler::MarkupCompiler(MarkValues values, bool glossary, References& references,
                               Diagnostics& diagnostics)
    : values_(std::move(values)), glossary_(glossary), references_(references), diagnostics_(diagnostics) {}

TextLine MarkupCompiler::compile(const TextLine& line) {
    place_ = line.place;
    rest_ = line.text;
    result_.clear();
    linkWords_.reset();
    linkDelimiters_ = 0;
    while (!rest_.empty()) {
        if (rest_.starts_with(markStart)) {
            compileMark();
        } else if (rest_.starts_with(linkStart)) {
            openLink();
        } else if (linkWords_ && rest_.starts_with(linkEnd)) {
            closeLink(*linkWords_);
        } else {
            take(std::min(rest_.find_first_of("{[]", 1), rest_.size()));
        }
    }
    finish();
    return {result_, place_};
}

void MarkupCompiler::compileMark() {
    const std::size_t end = rest_.find(markEnd);
    if (end == std::string_view::npos) {
        error(say::markIsOpen);
        take(markStart.size());
        return;
    }
    const std::string_view name = rest_.substr(markStart.size(), end - markStart.size());
    rest_.remove_prefix(end + markEnd.size());
    const auto value = values_.find(name);
    if (value != values_.end()) {
        result_.append(value->second);
        if (name == "data") noteDataPath();
    } else if (isLineMark(name)) {
        error(say::notALineMark, {markNamed(name)});
    } else if (isToolMark(name)) {
        error(say::notAToolMark, {markNamed(name)});
    } else {
        error(say::unknownMark, {markNamed(name)});
    }
}

void MarkupCompiler::openLink() {
    const std::string_view inner = rest_.substr(linkStart.size());
    const std::string_view key = inner.substr(0, inner.find_first_of("|]"));
    if (linkWords_) error(say::linkInsideLink);
    if (!glossary_) error(say::noLinkHere);
    if (!inner.substr(key.size()).starts_with('|')) {
        error(say::linkWithoutBar);
        take(linkStart.size());
        return;
    }
    references_.terms.push_back({place_, std::string(key)});
    result_.append(linkDelimiter).append(key);
    rest_.remove_prefix(linkStart.size() + key.size() + 1);
    linkWords_ = result_.size();
    ++linkDelimiters_;
}

void MarkupCompiler::closeLink(std::size_t words) {
    if (trimmed(std::string_view(result_).substr(words)).empty()) error(say::linkWithoutWords);
    result_.append(linkDelimiter);
    ++linkDelimiters_;
    rest_.remove_prefix(linkEnd.size());
    linkWords_.reset();
}

void MarkupCompiler::take(std::size_t length) {
    result_.append(rest_.substr(0, length));
    rest_.remove_prefix(length);
}

void MarkupCompiler::noteDataPath() {
    const std::string_view path = rest_.substr(0, rest_.find_first_of(pathEnds));
    references_.dataPaths.push_back({place_, std::string(path)});
}

void MarkupCompiler::finish() {
    if (linkWords_) error(say::linkIsOpen);
    const bool hasOwnTilde = std::ranges::count(result_, '~') > linkDelimiters_;
    if (hasOwnTilde && result_.find(linkDelimiter) != std::string::npos) {
        error(say::tildeWouldLink);
    }
}

void MarkupCompiler::error(const Message& message, MessageValues values) {
    diagnostics_.error(place_, message, std::move(values));
}

std::optional<std::string_view> nameInMarkLine(std::string_view line, std::string_view mark) {
    line = trimmed(line);
    if (!line.starts_with(markStart) || !line.ends_with(markEnd)) return std::nullopt;
    line = line.substr(markStart.size(), line.size() - markStart.size() - markEnd.size());
    if (!line.starts_with(mark) || !line.substr(mark.size()).starts_with(' ')) return std::nullopt;
    const std::string_view name = trimmed(line.substr(mark.size()));
    if (!isMediaName(name)) return std::nullopt;
    return name;
}

}  // namespace contentc
