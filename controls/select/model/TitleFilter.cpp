#include "controls/select/model/TitleFilter.h"

#include <algorithm>

#include "platform/text/Fold.h"

namespace controls::select {

namespace {

constexpr std::string_view blanks = " \t\r\n\xA0";

/// Joins parts that overlap or touch.
std::vector<Span> merged(std::vector<Span> found) {
    std::ranges::sort(found, {}, &Span::start);
    std::vector<Span> result;
    for (const Span& span : found) {
        if (result.empty() || span.start > result.back().start + result.back().length) {
            result.push_back(span);
        } else {
            Span& last = result.back();
            last.length = std::max(last.length, span.start + span.length - last.start);
        }
    }
    return result;
}

}  // namespace

TitleFilter::TitleFilter(std::string_view text) {
    const std::string folded = platform::fold(text);
    for (std::size_t end = 0;;) {
        const std::size_t start = folded.find_first_not_of(blanks, end);
        if (start == std::string::npos) return;
        end = std::min(folded.find_first_of(blanks, start), folded.size());
        words_.push_back(folded.substr(start, end - start));
    }
}

bool TitleFilter::passes(std::string_view folded) const {
    return std::ranges::all_of(
        words_, [folded](const std::string& word) { return folded.find(word) != folded.npos; });
}

std::vector<Span> TitleFilter::spans(std::string_view folded) const {
    std::vector<Span> found;
    for (const std::string& word : words_) {
        for (std::size_t at = folded.find(word); at != folded.npos; at = folded.find(word, at + 1)) {
            found.push_back({at, word.size()});
        }
    }
    return merged(std::move(found));
}

}  // namespace controls::select
