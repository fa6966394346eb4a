#include "tools/contentc/source/HeadReader.h"

#include <algorithm>
#include <array>

#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "platform/text/CodePage1253.h"
#include "platform/text/Fold.h"
#include "platform/text/GreekLiteral.h"
#include "tools/contentc/source/HeadMessages.h"

namespace contentc {
namespace {

using namespace platform::literals;

constexpr std::size_t maxSummary = 160;

constexpr std::array<std::string_view, 5> years{"Β΄ Γυμνασίου"_gr, "Γ΄ Γυμνασίου"_gr, "Α΄ Λυκείου"_gr,
                                                "Β΄ Λυκείου"_gr, "Γ΄ Λυκείου"_gr};

std::optional<PageKind> kindNamed(std::string_view name) {
    if (name == "start" || name == "αρχή"_gr) return PageKind::start;
    if (name == "topic" || name == "θέμα"_gr) return PageKind::topic;
    if (name == "entry" || name == "λήμμα"_gr) return PageKind::entry;
    return std::nullopt;
}

/// The parts of a field between semicolons, without empty ones.
std::vector<TextLine> partsOf(const TextLine* field) {
    std::vector<TextLine> parts;
    std::string_view rest = field ? std::string_view(field->text) : std::string_view();
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        const std::string_view part = trimmed(rest.substr(0, end));
        if (!part.empty()) parts.push_back({std::string(part), placeOfBytes(part, *field)});
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return parts;
}

/// Reads header fields one by one. A wrong one is reported and leaves the page as it was.
class HeadReader {
  public:
    HeadReader(const PageHeader& header, PageSource& page, Diagnostics& diagnostics)
        : header_(header), page_(page), diagnostics_(diagnostics) {}

    void readKind() {
        page_.kind = kindByNumber(page_.number, *page_.section);
        const TextLine* field = header_.find("kind");
        if (!field) return;
        const auto kind = kindNamed(field->text);
        if (kind) page_.kind = *kind;
        if (!kind) diagnostics_.error(field->place, say::unknownKind, {platform::toUtf8(field->text)});
    }

    void readTitle(std::size_t longest) {
        const TextLine* field = header_.require("title", diagnostics_);
        if (!field) return;
        page_.title = *field;
        checkLength("title", *field, longest);
    }

    void readTopic() {
        const bool isEntry = page_.kind == PageKind::entry;
        const TextLine* field = isEntry ? header_.require("topic", diagnostics_) : header_.find("topic");
        if (!field) return;
        page_.topicName = *field;
        if (!isEntry) diagnostics_.error(field->place, say::onlyEntriesHaveTopics);
    }

    void readOrder() {
        if (const auto order = number("order")) page_.order = *order;
    }

    void readSummary() {
        if (const TextLine* field = header_.find("summary")) {
            page_.summary = *field;
            checkLength("summary", *field, maxSummary);
        } else if (page_.kind == PageKind::topic && page_.number != 0) {
            const bool hasTitle = !page_.title.place.file.empty();
            diagnostics_.warning(hasTitle ? page_.title.place : page_.place, say::topicWithoutSummary);
        }
    }

    void readRelations() {
        page_.before = partsOf(header_.find("before"));
        page_.after = partsOf(header_.find("after"));
        page_.see = partsOf(header_.find("see"));
    }

    void readClasses() {
        for (const TextLine& part : partsOf(header_.find("class"))) {
            if (const auto chapter = schoolYearNamed(part.text)) {
                page_.classes.push_back(*chapter);
            } else {
                diagnostics_.error(part.place, say::unknownSchoolYear, {platform::toUtf8(part.text)});
            }
        }
    }

    void readSearchWords() {
        if (const TextLine* field = header_.find("search")) page_.searchWords = field->text;
    }

    void readYear() {
        const TextLine* field = header_.find("year");
        if (!field) return;
        std::string_view text = field->text;
        bool isAbout = false;
        for (const std::string_view about : {"περ. "_gr, std::string_view("c. ")}) {
            if (!text.starts_with(about)) continue;
            text.remove_prefix(about.size());
            isAbout = true;
        }
        if (const auto year = numberIn(text, field->place)) page_.year = TimeLineYear{*year, isAbout};
    }

  private:
    void checkLength(const std::string& name, const TextLine& field, std::size_t longest) {
        if (field.text.size() <= longest) return;
        diagnostics_.error(field.place, say::fieldIsTooLong,
                           {header_.shownName(name), field.text.size(), longest});
    }

    std::optional<std::int32_t> number(std::string_view name) {
        const TextLine* field = header_.find(name);
        if (!field) return std::nullopt;
        return numberIn(field->text, field->place);
    }

    std::optional<std::int32_t> numberIn(std::string_view text, const SourcePlace& place) {
        const auto value = parseNumber(text);
        if (!value) diagnostics_.error(place, say::notANumber, {platform::toUtf8(text)});
        return value;
    }

    const PageHeader& header_;
    PageSource& page_;
    Diagnostics& diagnostics_;
};

}  // namespace

std::optional<ClassChapter> schoolYearNamed(std::string_view text) {
    for (std::size_t i = 0; i < years.size(); ++i) {
        const std::string_view name = years[i];
        if (text.size() < name.size() ||
            platform::fold(text.substr(0, 1)) != platform::fold(name.substr(0, 1)))
            continue;
        // The sign behind the letter may be any of those that look alike.
        if (platform::fold(text.substr(2, name.size() - 2)) != platform::fold(name.substr(2))) continue;
        return ClassChapter{i, std::string(trimmed(text.substr(name.size())))};
    }
    return std::nullopt;
}

std::span<const std::string_view> schoolYears() { return years; }

PageKind kindByNumber(std::int32_t number, const formats::Section& section) {
    if (number == section.startPage) return PageKind::start;
    const bool hasList = formats::titleListFile(formats::listNumberOf(number)).has_value();
    return hasList ? PageKind::entry : PageKind::topic;
}

void readSectionHead(const PageHeader& header, PageSource& page, Diagnostics& diagnostics) {
    header.allowOnly(
        {"title", "kind", "topic", "order", "summary", "class", "before", "after", "see", "search", "year"},
        diagnostics);
    HeadReader reader(header, page, diagnostics);
    reader.readKind();
    reader.readTitle(page.kind == PageKind::entry ? formats::maxEntryTitle : formats::maxSectionTitle);
    reader.readTopic();
    reader.readOrder();
    reader.readSummary();
    reader.readRelations();
    reader.readClasses();
    reader.readSearchWords();
    reader.readYear();
}

void readPlainHead(const PageHeader& header, PageSource& page, Diagnostics& diagnostics) {
    header.allowOnly({"title"}, diagnostics);
    HeadReader(header, page, diagnostics).readTitle(formats::maxSectionTitle);
}

}  // namespace contentc
