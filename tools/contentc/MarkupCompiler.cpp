#include "tools/contentc/MarkupCompiler.h"

#include <algorithm>
#include <cctype>

#include "tools/contentc/source/TermSource.h"

namespace contentc {
namespace {

constexpr std::string_view kOpenMark = "{{";
constexpr std::string_view kCloseMark = "}}";
constexpr std::string_view kOpenLink = "[[";
constexpr std::string_view kCloseLink = "]]";
constexpr std::string_view kLinkDelimiter = "~G";
constexpr std::string_view kEndOfPath = "\"'<> \t#?{";

/// Whether a text can name a video or molecule file.
bool isMediaName(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](unsigned char c) {
        return std::isdigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_';
    });
}

/// The marks that are lines of their own.
bool isLineMark(std::string_view name) { return name.starts_with("video") || name.starts_with("molecule"); }

bool isToolMark(std::string_view name) { return name.starts_with("tool") || name == "end"; }

}  // namespace

MarkupCompiler::MarkupCompiler(MarkValues values, bool glossary, References& references,
                               Diagnostics& diagnostics)
    : m_values(std::move(values)),
      m_glossary(glossary),
      m_references(references),
      m_diagnostics(diagnostics) {}

TextLine MarkupCompiler::compile(const TextLine& line) {
    m_place = line.place;
    m_rest = line.text;
    m_result.clear();
    m_linkWords.reset();
    m_linkDelimiters = 0;
    while (!m_rest.empty()) {
        if (m_rest.starts_with(kOpenMark)) {
            compileMark();
        } else if (m_rest.starts_with(kOpenLink)) {
            openLink();
        } else if (m_linkWords && m_rest.starts_with(kCloseLink)) {
            closeLink();
        } else {
            take(1);
        }
    }
    finish();
    return {m_result, m_place};
}

void MarkupCompiler::compileMark() {
    const std::size_t end = m_rest.find(kCloseMark);
    if (end == std::string_view::npos) {
        error("'{{' is not closed on its line");
        take(kOpenMark.size());
        return;
    }
    const std::string_view name = m_rest.substr(kOpenMark.size(), end - kOpenMark.size());
    m_rest.remove_prefix(end + kCloseMark.size());
    const auto value = m_values.find(name);
    if (value != m_values.end()) {
        m_result.append(value->second);
        if (name == "data") noteDataPath();
    } else if (isLineMark(name)) {
        error(inQuotes("{{" + std::string(name) + "}}") +
              " is not '{{video NAME}}' or '{{molecule NAME}}' on a line " + "of its own");
    } else if (isToolMark(name)) {
        error(inQuotes("{{" + std::string(name) + "}}") +
              " is not '{{tool NAME}}', with settings as 'name=\"value\"', or the '{{end}}' of a quiz, on a "
              "line "
              "of its own");
    } else {
        error("unknown mark " + inQuotes("{{" + std::string(name) + "}}"));
    }
}

void MarkupCompiler::openLink() {
    const std::string_view inner = m_rest.substr(kOpenLink.size());
    const std::string_view key = inner.substr(0, inner.find_first_of("|]"));
    if (m_linkWords) error("'[[' inside a glossary link");
    if (!m_glossary) error("a glossary link works only on a page of a section");
    if (!inner.substr(key.size()).starts_with('|')) {
        error("'[[' without '|'");
        take(kOpenLink.size());
        return;
    }
    if (isGlossaryKey(key)) {
        m_references.terms.push_back({m_place, std::string(key)});
    } else {
        error("glossary key " + inQuotes(key) + " is not 8 characters of a-z and 0-9");
    }
    m_result.append(kLinkDelimiter).append(key);
    m_rest.remove_prefix(kOpenLink.size() + key.size() + 1);
    m_linkWords = m_result.size();
    ++m_linkDelimiters;
}

void MarkupCompiler::closeLink() {
    if (trimmed(std::string_view(m_result).substr(*m_linkWords)).empty())
        error("a glossary link without words");
    m_result.append(kLinkDelimiter);
    ++m_linkDelimiters;
    m_rest.remove_prefix(kCloseLink.size());
    m_linkWords.reset();
}

void MarkupCompiler::take(std::size_t length) {
    m_result.append(m_rest.substr(0, length));
    m_rest.remove_prefix(length);
}

void MarkupCompiler::noteDataPath() {
    const std::string_view path = m_rest.substr(0, m_rest.find_first_of(kEndOfPath));
    m_references.dataPaths.push_back({m_place, std::string(path)});
}

void MarkupCompiler::finish() {
    if (m_linkWords) error("'[[' is not closed on its line");
    const bool hasOwnTilde = std::ranges::count(m_result, '~') > m_linkDelimiters;
    if (hasOwnTilde && m_result.find(kLinkDelimiter) != std::string::npos) {
        error("'~' would be taken for a glossary link");
    }
}

void MarkupCompiler::error(std::string message) { m_diagnostics.error(m_place, std::move(message)); }

std::optional<std::string_view> nameInMarkLine(std::string_view line, std::string_view mark) {
    line = trimmed(line);
    if (!line.starts_with(kOpenMark) || !line.ends_with(kCloseMark)) return std::nullopt;
    line = line.substr(kOpenMark.size(), line.size() - kOpenMark.size() - kCloseMark.size());
    if (!line.starts_with(mark) || !line.substr(mark.size()).starts_with(' ')) return std::nullopt;
    const std::string_view name = trimmed(line.substr(mark.size()));
    if (!isMediaName(name)) return std::nullopt;
    return name;
}

}  // namespace contentc
