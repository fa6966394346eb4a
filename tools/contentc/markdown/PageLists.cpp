#include "tools/contentc/markdown/PageLists.h"

#include <algorithm>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/markdown/PageAddresses.h"
#include "tools/contentc/markdown/Typography.h"
#include "tools/contentc/source/EscapeHtml.h"

namespace contentc {
namespace {

using Pages = std::vector<const PageSource*>;

std::string textHtml(const std::string& codePageText) {
    return escapeHtml(typeset(platform::toUtf8(codePageText)));
}

std::string linkTo(const PageSource& page, const std::string& words) {
    return "<A HREF=\"" + addressOf(page) + "\">" + textHtml(words) + "</A>";
}

std::string pageLink(const PageSource& page) { return linkTo(page, page.title.text); }

std::string summaryOf(const PageSource& page) {
    if (page.summary.text.empty()) return {};
    return " <SPAN CLASS=\"summary\">" + textHtml(page.summary.text) + "</SPAN>";
}

std::string tagWithHeading(const std::string& style, const std::string& heading, bool isShown) {
    const std::string tag = "<NAV CLASS=\"" + style + "\" ARIA-LABEL=\"" + heading + "\">";
    return isShown ? tag + "<H2>" + heading + "</H2>" : tag;
}

HtmlList contentsOf(const Pages& pages, const std::string& heading, ListHeading shown) {
    if (pages.empty()) return {};
    const bool isShort =
        std::ranges::all_of(pages, [](const PageSource* page) { return page->summary.text.empty(); });
    HtmlList lines{
        tagWithHeading(isShort ? "contents short" : "contents", heading, shown == ListHeading::own), "<UL>"};
    for (const PageSource* page : pages)
        lines.push_back("<LI>" + pageLink(*page) + summaryOf(*page) + "</LI>");
    lines.emplace_back("</UL></NAV>");
    return lines;
}

/// The numbers of a chapter such as `2.3`, by which chapters are ordered.
std::vector<int> numbersOf(std::string_view chapter) {
    std::vector<int> numbers;
    for (bool isInNumber = false; const char c : chapter) {
        const bool isDigit = c >= '0' && c <= '9';
        if (isDigit && !isInNumber) numbers.push_back(0);
        constexpr int mostDigits = 100'000;
        if (isDigit && numbers.back() < mostDigits) numbers.back() = numbers.back() * 10 + (c - '0');
        isInNumber = isDigit;
    }
    return numbers;
}

struct ChapterPage {
    std::vector<int> order;
    std::string chapter;
    const PageSource* page;
};

/// All pages in the order of sections, topics and entries.
Pages allInOrder(const Content& content) {
    Pages pages;
    for (const formats::Section& section : formats::sectionTable()) {
        for (const PageSource* topic : topicsOf(content, section)) {
            pages.push_back(topic);
            std::ranges::copy(entriesOf(content, *topic), std::back_inserter(pages));
        }
    }
    return pages;
}

std::string yearText(const TimeLineYear& when) {
    const std::string year =
        when.year < 0 ? std::to_string(-when.year) + "\u00A0π.Χ." : std::to_string(when.year);
    return (when.isAbout ? "περ.\u00A0" : "") + year;
}

/// A page's title behind its year: that of an event begins with the year, which is not said twice.
std::string titleAfterYear(const PageSource& page, const TimeLineYear& when) {
    const std::string year = std::to_string(when.year) + ": ";
    return page.title.text.starts_with(year) ? page.title.text.substr(year.size()) : page.title.text;
}

void addRelated(const Pages& pages, const std::string& heading, HtmlList& lines) {
    if (pages.empty()) return;
    lines.push_back("<DIV><H2>" + heading + "</H2><UL>");
    for (const PageSource* page : pages)
        lines.push_back("<LI>" + pageLink(*page) + summaryOf(*page) + "</LI>");
    lines.emplace_back("</UL></DIV>");
}

std::string neighbour(const PageSource* page, const std::string& style, const std::string& words) {
    if (!page) return {};
    return "<A CLASS=\"" + style + "\" HREF=\"" + addressOf(*page) + "\"><SPAN>" + words + "</SPAN> " +
           textHtml(page->title.text) + "</A>";
}

}  // namespace

HtmlList topicList(const Content& content, const PageSource& page, ListHeading heading) {
    Pages topics = topicsOf(content, *page.section);
    std::erase_if(topics, [](const PageSource* topic) { return topic->kind == PageKind::start; });
    return contentsOf(topics, "Σε αυτή την ενότητα", heading);
}

HtmlList entryList(const Content& content, const PageSource& page, ListHeading heading) {
    return contentsOf(entriesOf(content, page),
                      page.kind == PageKind::start ? "Άλλες σελίδες" : "Σε αυτό το θέμα", heading);
}

HtmlList schoolYearList(const Content& content, std::size_t year) {
    std::vector<ChapterPage> chapters;
    for (const PageSource* page : allInOrder(content)) {
        for (const ClassChapter& place : page->classes) {
            if (place.year == year) chapters.push_back({numbersOf(place.chapter), place.chapter, page});
        }
    }
    if (chapters.empty()) return {};
    // What belongs to no chapter stands behind the chapters.
    std::ranges::stable_sort(
        chapters, {}, [](const ChapterPage& place) { return std::pair(place.order.empty(), place.order); });
    HtmlList lines{tagWithHeading("contents chapters", platform::toUtf8(schoolYears()[year]), false), "<UL>"};
    for (const ChapterPage& place : chapters) {
        lines.push_back("<LI><SPAN CLASS=\"chapter\">" + textHtml(place.chapter) + "</SPAN> " +
                        pageLink(*place.page) + summaryOf(*place.page) + "</LI>");
    }
    lines.emplace_back("</UL></NAV>");
    return lines;
}

HtmlList timeLine(const Content& content) {
    Pages pages = allInOrder(content);
    std::erase_if(pages, [](const PageSource* page) { return !page->year; });
    if (pages.empty()) return {};
    std::ranges::stable_sort(pages, {}, [](const PageSource* page) { return page->year->year; });
    HtmlList lines{tagWithHeading("timeline", "Χρονολόγιο", false), "<OL>"};
    for (const PageSource* page : pages) {
        // NOLINTNEXTLINE(bugprone-unchecked-optional-access): pages without a year were taken out
        const TimeLineYear& when = *page->year;
        lines.push_back("<LI><SPAN CLASS=\"year\">" + yearText(when) + "</SPAN> " +
                        linkTo(*page, titleAfterYear(*page, when)) + summaryOf(*page) + "</LI>");
    }
    lines.emplace_back("</OL></NAV>");
    return lines;
}

HtmlList pageFoot(const PageSource& page, const PageRelation& relation) {
    HtmlList lines;
    if (!relation.before.empty() || !relation.after.empty() || !relation.see.empty()) {
        lines.emplace_back("<NAV CLASS=\"related\" ARIA-LABEL=\"Σχετικές σελίδες\">");
        addRelated(relation.before, "Προϋποθέτει", lines);
        addRelated(relation.after, "Συνέχισε με", lines);
        addRelated(relation.see, "Δες επίσης", lines);
        lines.emplace_back("</NAV>");
    }
    if (!relation.previous && !relation.next) return lines;
    const bool isElement = isElementPage(page);
    const bool isTopic = page.kind == PageKind::topic;
    const std::string previous = isElement ? "Προηγούμενο στοιχείο"
                                 : isTopic ? "Προηγούμενο θέμα"
                                           : "Προηγούμενη σελίδα";
    const std::string next = isElement ? "Επόμενο στοιχείο" : isTopic ? "Επόμενο θέμα" : "Επόμενη σελίδα";
    lines.emplace_back("<NAV CLASS=\"sequence\" ARIA-LABEL=\"Προηγούμενο και επόμενο\">");
    for (const std::string& link :
         {neighbour(relation.previous, "previous", previous), neighbour(relation.next, "next", next)}) {
        if (!link.empty()) lines.push_back(link);
    }
    lines.emplace_back("</NAV>");
    return lines;
}

}  // namespace contentc
