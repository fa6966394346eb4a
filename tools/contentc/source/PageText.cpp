#include "tools/contentc/source/PageText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "platform/text/CodePage1253.h"
#include "platform/text/CodePageTable.h"
#include "platform/text/Fold.h"
#include "platform/text/GreekLiteral.h"

namespace contentc {
namespace {

using namespace platform::literals;

constexpr char kSigma = "σ"_gr[0];
constexpr char kFinalSigma = "ς"_gr[0];
constexpr std::string_view kAccented = "άέήίόύώΐΰ"_gr;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isLetter(char c) {
    const char32_t letter = platform::codepage::toUnicode(platform::lower(c));
    return (letter >= U'a' && letter <= U'z') || (letter >= U'ά' && letter <= U'ώ') || letter == U'ΐ';
}

/// The lowered digits of formulas, which the code page does not have.
constexpr char32_t kLoweredZero = U'\u2080';
constexpr char32_t kLoweredNine = U'\u2089';

/// A character given by its number. A blank when the code page does not have it.
char characterOf(std::string_view digits) {
    const bool isHexadecimal = digits.starts_with('x') || digits.starts_with('X');
    if (isHexadecimal) digits.remove_prefix(1);
    std::uint32_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
    if (number >= kLoweredZero && number <= kLoweredNine)
        return static_cast<char>('0' + (number - kLoweredZero));
    const int byte = number < 0x10000 ? platform::codepage::fromUnicode(number) : -1;
    return byte < 0x20 ? ' ' : static_cast<char>(byte);
}

/// Walks through the markup of a body and keeps what is not markup.
class TextExtraction {
  public:
    explicit TextExtraction(std::string_view markup) : m_rest(markup) {}

    std::string run() {
        while (!m_rest.empty()) {
            if (m_rest.starts_with("<!--")) {
                skipThrough("-->");
            } else if (m_rest.starts_with('<')) {
                takeTag();
            } else if (m_rest.starts_with("{{")) {
                skipThrough("}}");
                m_text.push_back(' ');
            } else if (m_rest.starts_with("[[") && m_rest.find('|') != std::string_view::npos) {
                skipThrough("|");
            } else if (m_rest.starts_with("]]")) {
                m_rest.remove_prefix(2);
            } else if (m_rest.starts_with('&')) {
                takeEntity();
            } else {
                m_text.push_back(m_rest.front());
                m_rest.remove_prefix(1);
            }
        }
        return std::move(m_text);
    }

  private:
    void skipThrough(std::string_view end) {
        const std::size_t at = m_rest.find(end);
        m_rest.remove_prefix(at == std::string_view::npos ? m_rest.size() : at + end.size());
    }

    void takeTag() {
        std::string_view name = m_rest.substr(1, m_rest.find_first_of("> \t\n", 1) - 1);
        if (name.starts_with('/')) name.remove_prefix(1);
        constexpr std::array<std::string_view, 6> kWithinWords{"sub", "sup", "b", "i", "em", "strong"};
        const std::string lowerName = platform::toLower(name);
        if (std::ranges::find(kWithinWords, lowerName) == kWithinWords.end()) m_text.push_back(' ');
        skipThrough(">");
    }

    void takeEntity() {
        constexpr std::size_t kLongestName = 12;
        const std::size_t end = m_rest.substr(0, kLongestName).find(';');
        if (end == std::string_view::npos || end < 2) {
            m_text.push_back(' ');
            m_rest.remove_prefix(1);
            return;
        }
        const std::string_view name = m_rest.substr(1, end - 1);
        m_text.push_back(name.starts_with('#') ? characterOf(name.substr(1)) : ' ');
        m_rest.remove_prefix(end + 1);
    }

    std::string_view m_rest;
    std::string m_text;
};

/// Takes the accent from the last letter that has one when another before it has one too.
void dropSecondAccent(std::string& word) {
    const std::size_t first = word.find_first_of(kAccented);
    const std::size_t last = word.find_last_of(kAccented);
    if (first == last) return;
    const char letter = word[last];
    const std::string plain = platform::fold({&letter, 1});
    word[last] = letter == "ΐ"_gr[0] ? "ϊ"_gr[0] : letter == "ΰ"_gr[0] ? "ϋ"_gr[0] : plain[0];
}

}  // namespace

std::string visibleText(const std::vector<TextLine>& body) {
    std::string markup;
    for (const TextLine& line : body) markup.append(line.text).push_back('\n');
    return TextExtraction(markup).run();
}

std::string normalizedWord(std::string_view word) {
    std::string normalized = platform::toLower(word);
    if (normalized.ends_with(kSigma)) normalized.back() = kFinalSigma;
    dropSecondAccent(normalized);
    return normalized;
}

std::set<std::string> wordsOf(std::string_view text) {
    std::set<std::string> words;
    const auto isInWord = [](char c) { return isLetter(c) || isDigit(c); };
    for (auto at = text.begin(); at != text.end();) {
        const auto begin = std::find_if(at, text.end(), isLetter);
        at = std::find_if_not(begin, text.end(), isInWord);
        const std::string_view run(begin, at);
        if (run.size() >= 2) words.insert(normalizedWord(run));
    }
    return words;
}

std::set<std::string> wordsOf(const PageSource& page) {
    return wordsOf(page.title.text + '\n' + visibleText(page.body));
}

}  // namespace contentc
