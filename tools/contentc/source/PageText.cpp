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

constexpr char sigma = "σ"_gr[0];
constexpr char finalSigma = "ς"_gr[0];
constexpr std::string_view accented = "άέήίόύώΐΰ"_gr;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The lowered digits of formulas. The code page does not have them.
constexpr char32_t loweredZero = U'\u2080';
constexpr char32_t loweredNine = U'\u2089';

/// Latin letters with an accent, which the code page does not have, by their plain letters.
constexpr char32_t firstAccented = 0xC0;
constexpr std::string_view plainLetters =
    "AAAAAAACEEEEIIIIDNOOOOO OUUUUYTsaaaaaaaceeeeiiiidnooooo ouuuuyty"
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTt"
    "UuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(plainLetters.size() == 0x180 - firstAccented);

/// The character with a number, a blank when the code page has nothing like it. A lowered digit becomes a
/// plain one, and a letter with an accent the letter without it.
char characterOf(std::string_view digits) {
    const bool isHexadecimal = digits.starts_with('x') || digits.starts_with('X');
    if (isHexadecimal) digits.remove_prefix(1);
    std::uint32_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
    if (number >= loweredZero && number <= loweredNine)
        return static_cast<char>('0' + (number - loweredZero));
    const int byte = number < 0x10000 ? platform::codepage::fromUnicode(number) : -1;
    if (byte < 0 && number >= firstAccented && number < firstAccented + plainLetters.size())
        return plainLetters[number - firstAccented];
    return byte < 0x20 ? ' ' : static_cast<char>(byte);
}

/// The letter of an entity such as `egrave`; a blank for all others.
char letterNamed(std::string_view name) {
    constexpr std::array<std::string_view, 8> accents{"grave", "acute", "circ",  "tilde",
                                                      "uml",   "ring",  "cedil", "slash"};
    const bool isLetter = std::ranges::find(accents, name.substr(1)) != accents.end();
    return isLetter ? name.front() : ' ';
}

constexpr std::string_view navigation = "<nav";

/// Goes through a body and keeps what is not markup.
class TextExtraction {
  public:
    explicit TextExtraction(std::string_view markup) : rest_(markup) {}

    std::string run() {
        while (!rest_.empty()) {
            if (rest_.starts_with("<!--")) {
                skipThrough("-->");
            } else if (rest_.starts_with('<')) {
                takeTag();
            } else if (rest_.starts_with("{{")) {
                skipThrough("}}");
                text_.push_back(' ');
            } else if (rest_.starts_with("[[") && rest_.find('|') != std::string_view::npos) {
                skipThrough("|");
            } else if (rest_.starts_with("]]")) {
                rest_.remove_prefix(2);
            } else if (rest_.starts_with('&')) {
                takeEntity();
            } else {
                takeText();
            }
        }
        return std::move(text_);
    }

  private:
    void takeText() {
        const std::string_view plain = rest_.substr(0, rest_.find_first_of("<{[]&", 1));
        text_.append(plain);
        rest_.remove_prefix(plain.size());
    }

    void skipThrough(std::string_view end) {
        const std::size_t at = rest_.find(end);
        rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at + end.size());
    }

    /// Links to other pages are no words of this one.
    void takeTag() {
        if (platform::toLower(rest_.substr(0, navigation.size())) == navigation) return skipThrough("</NAV>");
        std::string_view name = rest_.substr(1, rest_.find_first_of("> \t\n", 1) - 1);
        if (name.starts_with('/')) name.remove_prefix(1);
        constexpr std::array<std::string_view, 6> inlineTags{"sub", "sup", "b", "i", "em", "strong"};
        const std::string lowerName = platform::toLower(name);
        if (std::ranges::find(inlineTags, lowerName) == inlineTags.end()) text_.push_back(' ');
        skipThrough(">");
    }

    void takeEntity() {
        constexpr std::size_t maxName = 12;
        const std::size_t end = rest_.substr(0, maxName).find(';');
        if (end == std::string_view::npos || end < 2) {
            text_.push_back(' ');
            rest_.remove_prefix(1);
            return;
        }
        const std::string_view name = rest_.substr(1, end - 1);
        text_.push_back(name.starts_with('#') ? characterOf(name.substr(1)) : letterNamed(name));
        rest_.remove_prefix(end + 1);
    }

    std::string_view rest_;
    std::string text_;
};

/// Removes the last accent of a word that has two.
void dropSecondAccent(std::string& word) {
    const std::size_t first = word.find_first_of(accented);
    const std::size_t last = word.find_last_of(accented);
    if (first == last) return;
    const char letter = word[last];
    const std::string plain = platform::fold({&letter, 1});
    word[last] = letter == "ΐ"_gr[0] ? "ϊ"_gr[0] : letter == "ΰ"_gr[0] ? "ϋ"_gr[0] : plain[0];
}

}  // namespace

bool isLetter(char c) {
    const char32_t letter = platform::codepage::toUnicode(platform::lower(c));
    return (letter >= U'a' && letter <= U'z') || (letter >= U'ά' && letter <= U'ώ') || letter == U'ΐ';
}

std::string visibleText(const std::vector<TextLine>& body) {
    std::string markup;
    for (const TextLine& line : body) markup.append(line.text).push_back('\n');
    return TextExtraction(markup).run();
}

std::string normalizedWord(std::string_view word) {
    std::string normalized = platform::toLower(word);
    if (normalized.ends_with(sigma)) normalized.back() = finalSigma;
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
    return wordsOf(page.title.text + '\n' + page.searchWords + '\n' + visibleText(page.body));
}

}  // namespace contentc
