#include "tools/contentc/source/PageHeader.h"

#include <algorithm>
#include <utility>

#include "platform/text/GreekLiteral.h"

namespace contentc {
namespace {

using namespace platform::literals;

constexpr std::pair<std::string_view, std::string_view> greekNames[] = {
    {"τίτλος"_gr, "title"},     {"είδος"_gr, "kind"},       {"θέμα"_gr, "topic"},  {"σειρά"_gr, "order"},
    {"περίληψη"_gr, "summary"}, {"τάξη"_gr, "class"},       {"πριν"_gr, "before"}, {"μετά"_gr, "after"},
    {"δες"_gr, "see"},          {"αναζήτηση"_gr, "search"}, {"έτος"_gr, "year"},
};

std::string_view englishName(std::string_view name) {
    const auto found =
        std::ranges::find(greekNames, name, &std::pair<std::string_view, std::string_view>::first);
    return found == std::end(greekNames) ? name : found->second;
}

}  // namespace

std::optional<PageHeader> PageHeader::take(const SourceFile& file, std::vector<TextLine>& lines,
                                           Diagnostics& diagnostics) {
    const auto end = std::ranges::find(lines, PageHeader::lastLine, &TextLine::text);
    if (end == lines.end()) {
        diagnostics.error(lines.empty() ? file.place() : lines.back().place,
                          "no line '---' between header and body");
        return std::nullopt;
    }
    PageHeader header(end->place);
    for (auto line = lines.begin(); line != end; ++line) header.add(*line, diagnostics);
    lines.erase(lines.begin(), end + 1);
    return header;
}

void PageHeader::add(const TextLine& line, Diagnostics& diagnostics) {
    if (trimmed(line.text).empty()) return;
    const std::size_t colon = line.text.find(':');
    if (colon == std::string::npos) {
        diagnostics.error(line.place, "not a header line 'name: value'");
        return;
    }
    const std::string name(englishName(trimmed(std::string_view(line.text).substr(0, colon))));
    const TextLine field{std::string(trimmed(std::string_view(line.text).substr(colon + 1))), line.place};
    if (!fields_.emplace(name, field).second) {
        diagnostics.error(line.place, "header field " + inQuotes(name) + " stands twice");
    }
}

void PageHeader::allowOnly(std::initializer_list<std::string_view> known, Diagnostics& diagnostics) const {
    for (const auto& [name, field] : fields_) {
        if (std::ranges::find(known, name) != known.end()) continue;
        diagnostics.error(field.place, "unknown header field " + inQuotes(name));
    }
}

const TextLine* PageHeader::find(std::string_view name) const {
    const auto found = fields_.find(name);
    return found == fields_.end() ? nullptr : &found->second;
}

const TextLine* PageHeader::require(std::string_view name, Diagnostics& diagnostics) const {
    const TextLine* field = find(name);
    if (!field) {
        diagnostics.error(end_, "header field " + inQuotes(name) + " is missing");
    } else if (field->text.empty()) {
        diagnostics.error(field->place, "header field " + inQuotes(name) + " is empty");
        return nullptr;
    }
    return field;
}

}  // namespace contentc
