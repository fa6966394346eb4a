#include "tools/contentc/SourceColumns.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>

namespace contentc {
namespace {

bool isWordSign(char c) {
    const auto value = static_cast<unsigned char>(c);
    return value >= 0x80 || std::isalnum(value) != 0;
}

/// Whether the part is no piece of a longer word.
bool standsAlone(std::string_view text, std::size_t at, std::size_t length) {
    const std::size_t end = at + length;
    const bool goesOnBefore = at > 0 && isWordSign(text[at - 1]) && isWordSign(text[at]);
    const bool goesOnBehind = end < text.size() && isWordSign(text[end - 1]) && isWordSign(text[end]);
    return !goesOnBefore && !goesOnBehind;
}

std::string inSmallLetters(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return small;
}

/// Where the name stands in the text, in whatever letters; nothing unless it does so just once.
std::optional<std::size_t> onlyPlace(const std::string& name, std::string_view text) {
    std::optional<std::size_t> place;
    if (name.empty()) return place;
    const std::string wanted = inSmallLetters(name);
    const std::string lower = inSmallLetters(text);
    for (std::size_t at = 0; (at = lower.find(wanted, at)) != std::string::npos; at += wanted.size()) {
        if (!standsAlone(lower, at, wanted.size())) continue;
        if (place) return std::nullopt;
        place = at;
    }
    return place;
}

class ColumnFinder {
  public:
    explicit ColumnFinder(const Content& content) {
        for (const PageSource& page : content.pages) pages_[page.place.file] = &page.markdown;
        for (const auto* plain : {&content.startPage, &content.helpPage}) {
            if (*plain) pages_[(*plain)->place.file] = &(*plain)->markdown;
        }
    }

    void addTo(Diagnostic& diagnostic) const {
        const TextLine* line = diagnostic.place.column > 0 ? nullptr : lineAt(diagnostic.place);
        if (!line) return;
        for (const MessageValue& value : diagnostic.what.values) {
            const auto at = onlyPlace(value.text, line->text);
            if (!at) continue;
            diagnostic.place.column = columnAt(line->text, *at);
            return;
        }
    }

  private:
    const TextLine* lineAt(const SourcePlace& place) const {
        const auto page = pages_.find(place.file);
        if (page == pages_.end()) return nullptr;
        const auto line = std::ranges::find(*page->second, place.line,
                                            [](const TextLine& each) { return each.place.line; });
        return line == page->second->end() ? nullptr : &*line;
    }

    std::map<std::string_view, const std::vector<TextLine>*> pages_;
};

}  // namespace

void addColumns(const Content& content, Diagnostics& diagnostics) {
    const ColumnFinder finder(content);
    diagnostics.change([&finder](Diagnostic& diagnostic) { finder.addTo(diagnostic); });
}

}  // namespace contentc
