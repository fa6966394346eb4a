#include "tools/contentc/source/PageHeader.h"

#include <algorithm>
#include <utility>

#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"
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

/// The English name of a field, for a Greek or English one in whatever case and with or without accents; any
/// other name stays.
std::string_view englishName(std::string_view name) {
    const std::string folded = platform::fold(name);
    for (const auto& [greek, english] : greekNames) {
        if (platform::fold(greek) == folded || english == folded) return english;
    }
    return name;
}

bool isGreekName(std::string_view name) {
    return std::ranges::any_of(name, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
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
    const std::string_view text = line.text;
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        diagnostics.error(placeOfBytes(trimmed(text), line), say::notAHeadLine);
        return;
    }
    const std::string_view written = trimmed(text.substr(0, colon));
    const std::string name(englishName(written));
    if (isGreekName(written)) isGreek_ = true;
    const std::string_view value = trimmed(text.substr(colon + 1));
    const SourcePlace valuePlace = value.empty() ? line.place : placeOfBytes(value, line);
    const SourcePlace namePlace = written.empty() ? line.place : placeOfBytes(written, line);
    if (!fields_.emplace(name, Field{{std::string(value), valuePlace}, namePlace}).second)
        diagnostics.error(namePlace, say::fieldStandsTwice, {shownName(name)});
}

void PageHeader::allowOnly(std::initializer_list<std::string_view> known, Diagnostics& diagnostics) const {
    for (const auto& [name, field] : fields_) {
        if (std::ranges::find(known, name) != known.end()) continue;
        std::vector<std::string> names;
        for (const std::string_view each : known) names.push_back(shownName(each));
        const std::string written = platform::toUtf8(name);
        diagnostics.error(field.namePlace, say::unknownField, {written}).suggestNearest(written, names);
    }
}

std::string PageHeader::shownName(std::string_view name) const {
    const auto greek =
        std::ranges::find(greekNames, name, &std::pair<std::string_view, std::string_view>::second);
    return platform::toUtf8(isGreek_ && greek != std::end(greekNames) ? greek->first : name);
}

const TextLine* PageHeader::find(std::string_view name) const {
    const auto found = fields_.find(name);
    return found == fields_.end() ? nullptr : &found->second.value;
}

const TextLine* PageHeader::require(std::string_view name, Diagnostics& diagnostics) const {
    const TextLine* field = find(name);
    if (!field) {
        diagnostics.error(end_, say::fieldIsMissing, {shownName(name)})
            .suggest(say::writeALine, {shownName(name) + ": …"});
    } else if (field->text.empty()) {
        diagnostics.error(field->place, say::fieldIsEmpty, {shownName(name)});
        return nullptr;
    }
    return field;
}

}  // namespace contentc
