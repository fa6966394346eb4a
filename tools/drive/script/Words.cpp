#include "tools/drive/script/Words.h"

namespace drive {

namespace {

constexpr std::string_view blanks = " \t\r\n";
/// Some editors put this at the beginning of a UTF-8 file.
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isBlank(char c) { return blanks.find(c) != std::string_view::npos; }

/// Removes a quoted word from the beginning of `rest` and returns it. `rest` begins with the opening quote.
std::optional<std::string> takeQuoted(std::string_view& rest) {
    std::string word;
    for (std::size_t at = 1; at < rest.size(); ++at) {
        const char c = rest[at];
        const bool escapes =
            c == '\\' && at + 1 < rest.size() && (rest[at + 1] == '"' || rest[at + 1] == '\\');
        if (escapes) {
            word += rest[++at];
        } else if (c != '"') {
            word += c;
        } else {
            rest.remove_prefix(at + 1);
            const bool ends = rest.empty() || isBlank(rest.front());
            return ends ? std::optional(word) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::string takePlain(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find_first_of(blanks));
    rest.remove_prefix(word.size());
    return std::string(word);
}

}  // namespace

std::optional<std::vector<std::string>> splitWords(std::string_view line) {
    std::vector<std::string> words;
    std::string_view rest = line;
    if (rest.starts_with(byteOrderMark)) rest.remove_prefix(byteOrderMark.size());
    while (true) {
        const std::size_t start = rest.find_first_not_of(blanks);
        if (start == std::string_view::npos || rest[start] == '#') return words;
        rest.remove_prefix(start);
        if (rest.front() != '"') {
            words.push_back(takePlain(rest));
            continue;
        }
        std::optional<std::string> quoted = takeQuoted(rest);
        if (!quoted) return std::nullopt;
        words.push_back(std::move(*quoted));
    }
}

}  // namespace drive
