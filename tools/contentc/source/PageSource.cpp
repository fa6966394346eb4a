#include "tools/contentc/source/PageSource.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "tools/contentc/source/PageHeader.h"

namespace contentc {
namespace {

std::optional<PageKind> kindNamed(std::string_view name) {
    if (name == "start") return PageKind::Start;
    if (name == "topic") return PageKind::Topic;
    if (name == "entry") return PageKind::Entry;
    return std::nullopt;
}

/// Interprets header fields one by one; what is wrong is reported and leaves the page as it was.
class HeaderReader {
  public:
    HeaderReader(const PageHeader& header, PageSource& page, Diagnostics& diagnostics)
        : m_header(header), m_page(page), m_diagnostics(diagnostics) {}

    bool readKind() {
        const TextLine* field = m_header.require("kind", m_diagnostics);
        if (!field) return false;
        const auto kind = kindNamed(field->text);
        if (kind) m_page.kind = *kind;
        if (!kind) m_diagnostics.error(field->place, "unknown kind " + inQuotes(field->text));
        return kind.has_value();
    }

    void readTitle(std::size_t longest) {
        const TextLine* field = m_header.require("title", m_diagnostics);
        if (!field) return;
        m_page.title = *field;
        if (field->text.size() <= longest) return;
        m_diagnostics.error(field->place, "title has " + std::to_string(field->text.size()) +
                                              " bytes, at most " + std::to_string(longest) + " fit");
    }

    void readTopic() {
        const bool isEntry = m_page.kind == PageKind::Entry;
        const TextLine* field = isEntry ? m_header.require("topic", m_diagnostics) : m_header.find("topic");
        if (!field) return;
        m_page.topicPlace = field->place;
        if (isEntry) {
            readNumber(field, m_page.topic);
        } else {
            m_diagnostics.error(field->place, "only an entry has a topic");
        }
    }

    void readOrder() { readNumber(m_header.find("order"), m_page.order); }

    void readTemplate() {
        const TextLine* field = m_header.find("template");
        if (!field || field->text == "page") return;
        if (field->text == "molecule") {
            m_page.scaffold = PageTemplate::Molecule;
        } else {
            m_diagnostics.error(field->place, "unknown template " + inQuotes(field->text));
        }
    }

  private:
    void readNumber(const TextLine* field, std::int32_t& number) {
        if (!field) return;
        if (const auto value = parseNumber(field->text)) {
            number = *value;
        } else {
            m_diagnostics.error(field->place, "not a number: " + inQuotes(field->text));
        }
    }

    const PageHeader& m_header;
    PageSource& m_page;
    Diagnostics& m_diagnostics;
};

/// The number that the file is named after, when its digits are written as usual.
std::optional<std::int32_t> numberOf(const SourceFile& file, Diagnostics& diagnostics) {
    const auto number = parseNumber(file.stem());
    if (number && formats::pagePath(*number) && std::to_string(*number) == file.stem()) return number;
    diagnostics.error(file.place(), "file name is not a page number: '" + file.stem() + '\'');
    return std::nullopt;
}

/// Whether the number suits the kind: start pages have theirs, entries an item code.
void checkNumber(const PageSource& page, Diagnostics& diagnostics) {
    const bool isStart = page.number == page.section->startPage;
    const std::string number = std::to_string(page.number);
    if (page.kind == PageKind::Start && !isStart) {
        diagnostics.error(page.place, "the start page of this section is " +
                                          std::to_string(page.section->startPage) + ", not " + number);
    } else if (page.kind != PageKind::Start && isStart) {
        diagnostics.error(page.place, "page " + number + " must be of kind 'start'");
    } else if (page.kind == PageKind::Entry && (!formats::titleListFile(formats::listNumberOf(page.number)) ||
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
    reader.readTitle(page.kind == PageKind::Entry ? formats::maxEntryTitle : formats::maxSectionTitle);
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
