#include "tools/contentc/source/PageSource.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "tools/contentc/source/PageHeader.h"

namespace contentc {
namespace {

std::optional<PageKind> kindNamed(std::string_view name) {
    if (name == "start") return PageKind::start;
    if (name == "topic") return PageKind::topic;
    if (name == "entry") return PageKind::entry;
    return std::nullopt;
}

/// Reads header fields one by one. A wrong one is reported and leaves the page as it was.
class HeaderReader {
  public:
    HeaderReader(const PageHeader& header, PageSource& page, Diagnostics& diagnostics)
        : header_(header), page_(page), diagnostics_(diagnostics) {}

    bool readKind() {
        const TextLine* field = header_.require("kind", diagnostics_);
        if (!field) return false;
        const auto kind = kindNamed(field->text);
        if (kind) page_.kind = *kind;
        if (!kind) diagnostics_.error(field->place, "unknown kind " + inQuotes(field->text));
        return kind.has_value();
    }

    void readTitle(std::size_t longest) {
        const TextLine* field = header_.require("title", diagnostics_);
        if (!field) return;
        page_.title = *field;
        if (field->text.size() <= longest) return;
        diagnostics_.error(field->place, "title has " + std::to_string(field->text.size()) +
                                             " bytes, at most " + std::to_string(longest) + " fit");
    }

    void readTopic() {
        const bool isEntry = page_.kind == PageKind::entry;
        const TextLine* field = isEntry ? header_.require("topic", diagnostics_) : header_.find("topic");
        if (!field) return;
        page_.topicPlace = field->place;
        if (isEntry) {
            readNumber(field, page_.topic);
        } else {
            diagnostics_.error(field->place, "only an entry has a topic");
        }
    }

    void readOrder() { readNumber(header_.find("order"), page_.order); }

    void readTemplate() {
        const TextLine* field = header_.find("template");
        if (!field || field->text == "page") return;
        if (field->text == "molecule") {
            page_.scaffold = PageTemplate::molecule;
        } else {
            diagnostics_.error(field->place, "unknown template " + inQuotes(field->text));
        }
    }

  private:
    void readNumber(const TextLine* field, std::int32_t& number) {
        if (!field) return;
        if (const auto value = parseNumber(field->text)) {
            number = *value;
        } else {
            diagnostics_.error(field->place, "not a number: " + inQuotes(field->text));
        }
    }

    const PageHeader& header_;
    PageSource& page_;
    Diagnostics& diagnostics_;
};

/// The page number in the file's name. Reported when there is none, or when it has leading zeros.
std::optional<std::int32_t> numberOf(const SourceFile& file, Diagnostics& diagnostics) {
    const auto number = parseNumber(file.stem());
    if (number && formats::pagePath(*number) && std::to_string(*number) == file.stem()) return number;
    diagnostics.error(file.place(), "file name is not a page number: '" + file.stem() + '\'');
    return std::nullopt;
}

/// Reports a number that does not suit the kind: start pages have fixed numbers, entries item codes.
void checkNumber(const PageSource& page, Diagnostics& diagnostics) {
    const bool isStart = page.number == page.section->startPage;
    const std::string number = std::to_string(page.number);
    if (page.kind == PageKind::start && !isStart) {
        diagnostics.error(page.place, "the start page of this section is " +
                                          std::to_string(page.section->startPage) + ", not " + number);
    } else if (page.kind != PageKind::start && isStart) {
        diagnostics.error(page.place, "page " + number + " must be of kind 'start'");
    } else if (page.kind == PageKind::entry && (!formats::titleListFile(formats::listNumberOf(page.number)) ||
                                                formats::entryNumberOf(page.number) < 1)) {
        diagnostics.error(page.place, "entry " + number + " belongs to no title list");
    }
}

}  // namespace

std::optional<PageSource> readSectionPage(const SourceFile& file, const formats::Section& section,
                                          Diagnostics& diagnostics) {
    PageSource page;
    page.place = file.place();
    page.section = &section;
    page.body = readLines(file, diagnostics);
    const auto number = numberOf(file, diagnostics);
    const auto header = PageHeader::take(file, page.body, diagnostics);
    if (!header) return std::nullopt;

    header->allowOnly({"title", "kind", "topic", "order", "template"}, diagnostics);
    HeaderReader reader(*header, page, diagnostics);
    const bool hasKind = reader.readKind();
    reader.readTitle(page.kind == PageKind::entry ? formats::maxEntryTitle : formats::maxSectionTitle);
    reader.readOrder();
    reader.readTemplate();
    if (hasKind) reader.readTopic();
    if (!hasKind || !number) return std::nullopt;
    page.number = *number;
    checkNumber(page, diagnostics);
    return page;
}

std::optional<PageSource> readPlainPage(const SourceFile& file, Diagnostics& diagnostics) {
    PageSource page;
    page.place = file.place();
    page.body = readLines(file, diagnostics);
    const auto header = PageHeader::take(file, page.body, diagnostics);
    if (!header) return std::nullopt;
    header->allowOnly({"title"}, diagnostics);
    HeaderReader(*header, page, diagnostics).readTitle(formats::maxSectionTitle);
    return page;
}

}  // namespace contentc
