#include "tools/contentc/source/PageHeader.h"

#include <algorithm>

namespace contentc {
namespace {

constexpr std::string_view endOfHeader = "---";

}  // namespace

std::optional<PageHeader> PageHeader::take(const SourceFile& file, std::vector<TextLine>& lines,
                                           Diagnostics& diagnostics) {
    const auto end = std::ranges::find(lines, endOfHeader, &TextLine::text);
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
    const std::size_t colon = line.text.find(':');
    if (colon == std::string::npos) {
        diagnostics.error(line.place, "not a header line 'name: value'");
        return;
    }
    const std::string name(trimmed(line.text.substr(0, colon)));
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
