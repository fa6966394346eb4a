#include "tools/contentc/source/Diagnostics.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include "tools/contentc/source/CommonMessages.h"
#include "tools/contentc/source/NearestName.h"

namespace contentc {
namespace {

std::string toText(const SourcePlace& place) {
    std::string text = std::string(shownFile(place.file)) + ':' + std::to_string(place.line) + ':';
    if (place.column > 0) text += std::to_string(place.column) + ':';
    return text;
}

auto sortKey(const Diagnostic& found) {
    const SourcePlace& place = found.place;
    return std::tuple(std::string_view(place.file), place.line, place.column, found.severity,
                      found.what.in(Language::english));
}

}  // namespace

std::string_view shownFile(std::string_view file) { return file.substr(file.starts_with("./") ? 2 : 0); }

int columnAt(std::string_view utf8Line, std::size_t offset) {
    const auto before = utf8Line.substr(0, offset);
    const auto isContinuation = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; };
    return 1 + static_cast<int>(before.size()) -
           static_cast<int>(std::ranges::count_if(before, isContinuation));
}

Diagnostic& Diagnostic::suggest(const Message& message, MessageValues values) {
    suggestions.push_back({message, std::move(values)});
    return *this;
}

Diagnostic& Diagnostic::suggestNearest(std::string_view wanted, const std::vector<std::string>& names) {
    if (auto nearest = nearestName(wanted, names)) suggest(say::didYouMean, {*std::move(nearest)});
    return *this;
}

Diagnostic& Diagnostic::suggestNearestOr(std::string_view wanted, const std::vector<std::string>& names,
                                         const Message& message, MessageValues values) {
    const std::size_t before = suggestions.size();
    suggestNearest(wanted, names);
    return suggestions.size() > before ? *this : suggest(message, std::move(values));
}

std::string toLine(const Diagnostic& diagnostic, Language language) {
    std::string line = toText(diagnostic.place) + ' ';
    if (diagnostic.severity == Severity::warning) line += Phrase{say::warning, {}}.in(language);
    line += diagnostic.what.in(language);
    for (const Phrase& suggestion : diagnostic.suggestions)
        line += Phrase{say::separator, {}}.in(language) + suggestion.in(language);
    return line;
}

Diagnostic& Diagnostics::error(const SourcePlace& place, const Message& message, MessageValues values) {
    return found_.emplace_back(Diagnostic{place, Severity::error, {message, std::move(values)}, {}});
}

Diagnostic& Diagnostics::warning(const SourcePlace& place, const Message& message, MessageValues values) {
    return found_.emplace_back(Diagnostic{place, Severity::warning, {message, std::move(values)}, {}});
}

void Diagnostics::add(Diagnostics more) { std::ranges::move(more.found_, std::back_inserter(found_)); }

void Diagnostics::change(const std::function<void(Diagnostic&)>& change) {
    std::ranges::for_each(found_, change);
}

bool Diagnostics::hasErrors() const {
    return std::ranges::any_of(found_, [](const Diagnostic& d) { return d.severity == Severity::error; });
}

std::vector<Diagnostic> Diagnostics::sorted() const {
    std::vector<Diagnostic> sorted = found_;
    std::ranges::stable_sort(sorted, {}, sortKey);
    const auto isSame = [](const Diagnostic& a, const Diagnostic& b) { return sortKey(a) == sortKey(b); };
    sorted.erase(std::ranges::unique(sorted, isSame).begin(), sorted.end());
    return sorted;
}

}  // namespace contentc
