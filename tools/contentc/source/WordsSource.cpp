#include "tools/contentc/source/WordsSource.h"

#include <algorithm>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/DataMessages.h"
#include "tools/contentc/source/PageText.h"

namespace contentc {
namespace {

std::vector<std::string> splitWords(std::string_view line) {
    std::vector<std::string> words;
    for (line = trimmed(line); !line.empty(); line = trimmed(line)) {
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        words.push_back(normalizedWord(line.substr(0, end)));
        line.remove_prefix(end);
    }
    return words;
}

/// Calls `take` with the words of each line that has some.
template <typename Take>
void forEachLine(const std::optional<SourceFile>& file, Diagnostics& diagnostics, Take take) {
    if (!file) return;
    for (const TextLine& line : readLines(*file, diagnostics)) {
        const std::string_view text = trimmed(line.text);
        if (!text.empty() && !text.starts_with('#')) take(line.place, splitWords(text));
    }
}

}  // namespace

WordsSource readWords(const std::optional<SourceFile>& stopWords, const std::optional<SourceFile>& forms,
                      Diagnostics& diagnostics) {
    WordsSource source;
    forEachLine(stopWords, diagnostics, [&](const SourcePlace&, const std::vector<std::string>& words) {
        source.stopWords.insert(words.begin(), words.end());
    });
    std::set<std::string> grouped;
    forEachLine(forms, diagnostics, [&](const SourcePlace& place, std::vector<std::string> words) {
        for (const std::string& word : words) {
            if (!grouped.insert(word).second)
                diagnostics.error(place, say::wordStandsTwice, {platform::toUtf8(word)});
        }
        source.formGroups.push_back(std::move(words));
    });
    return source;
}

}  // namespace contentc
