#include "tools/contentc/source/PageHeader.h"

#include <algorithm>
#include <utility>

#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"
#include "tools/contentc/source/HeadMessages.h"

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

std::optional<PageHeader> PageHeader::read(const SourceFile& file, const std::vector<TextLine>& lines,
                                           Diagnostics& diagnostics) {
    const auto end = std::ranges::find(lines, PageHeader::lastLine, &TextLine::text);
    if (end == lines.end()) {
        diagnostics.error(lines.empty() ? file.place() : lines.back().place, say::headIsNotClosed);
        return std::nullopt;
    }
    PageHeader header(end->place);
    for (auto line = lines.begin(); line != end; ++line) header.add(*line, diagnostics);
    return header;
}

void PageHeader::add(const TextLine& line, Diagnostics& diagnostics) {
    if (trimmed(line.text).empty()) return;
    const std::size_t colon = line.text.find(':');
    if (colon == std::string::npos) {
        diagnostics.error(line.place, say::notAHeadLine);
        return;
    }
    const std::string_view written = trimmed(std::string_view(line.text).substr(0, colon));
    const std::string name(englishName(written));
    if (written != name) isGreek_ = true;
    const TextLine field{std::string(trimmed(std::string_view(line.text).substr(colon + 1))), line.place};
    if (!fields_.emplace(name, field).second) {
        diagnostics.error(line.place, say::fieldStandsTwice, {shownName(name)});
    }
}

void PageHeader::allowOnly(std::initializer_list<std::string_view> known, Diagnostics& diagnostics) const {
    for (const auto& [name, field] : fields_) {
        if (std::ranges::find(known, name) != known.end()) continue;
        std::vector<std::string> names;
        for (const std::string_view each : known) names.push_back(shownName(each));
        const std::string written = platform::toUtf8(name);
        diagnostics.error(field.place, say::unknownField, {written}).suggestNearest(written, names);
    }
}

std::string PageHeader::shownName(std::string_view name) const {
    const auto greek =
        std::ranges::find(greekNames, name, &std::pair<std::string_view, std::string_view>::second);
    return platform::toUtf8(isGreek_ && greek != std::end(greekNames) ? greek->first : name);
}

const TextLine* PageHeader::find(std::string_view name) const {
    const auto found = fields_.find(name);
    return found == fields_.end() ? nullptr : &found->second;
}

const TextLine* PageHeader::require(std::string_view name, Diagnostics& diagnostics) const {
    const TextLine* field = find(name);
    if (!field) {
        diagnostics.error(end_, say::fieldIsMissing, {shownName(name)});
    } else if (field->text.empty()) {
        diagnostics.error(field->place, say::fieldIsEmpty, {shownName(name)});
        return nullptr;
    }
    return field;
}

}  // namespace contentc
