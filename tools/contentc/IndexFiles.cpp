#include "tools/contentc/IndexFiles.h"

#include <algorithm>
#include <map>
#include <optional>

#include "controls/elements/Element.h"
#include "formats/BrowseIndex.h"
#include "formats/ElementIndex.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "tools/contentc/WordIndex.h"
#include "tools/contentc/source/ContentMessages.h"
#include "tools/contentc/source/ElementPages.h"

namespace contentc {
namespace {

class IndexFileMaker {
  public:
    IndexFileMaker(const Content& content, OutputFiles& outputs, Diagnostics& diagnostics)
        : content_(content), outputs_(outputs), diagnostics_(diagnostics) {}

    void addSectionTitles() {
        for (const formats::Section& section : formats::sectionTable()) {
            std::vector<formats::SectionTitleRecord> records;
            for (const PageSource* topic : topicsOf(content_, section)) {
                records.push_back({topic->title.text, topic->number});
            }
            if (section.key == "elemcomp") addElementTitles(records);
            add(std::string(section.key) + ".dat", formats::encodeSectionTitles(records));
        }
    }

    void addTitleLists() {
        std::map<std::string_view, std::vector<std::string>> lists;
        for (const formats::TitleList& list : formats::titleListTable()) lists[list.fileName];
        for (const PageSource& page : content_.pages) {
            const auto file = formats::titleListFile(formats::listNumberOf(page.number));
            if (page.kind != PageKind::entry || !file) continue;
            const auto entry = static_cast<std::size_t>(formats::entryNumberOf(page.number));
            std::vector<std::string>& titles = lists[*file];
            if (titles.size() < entry) titles.resize(entry);
            titles[entry - 1] = page.title.text;
        }
        for (const auto& [file, titles] : lists) add(std::string(file), formats::encodeTitleList(titles));
    }

    void addElementIndex() {
        std::vector<formats::ElementPageRecord> records;
        for (int number = 1; number <= controls::elementCount; ++number) {
            if (elementPage(content_, number))
                records.push_back({static_cast<std::uint8_t>(number), elementPageNumber(number)});
        }
        add(std::string(formats::elementIndexFile), formats::encodeElementIndex(records));
    }

    void addBrowseIndex() {
        formats::BrowseIndex index;
        for (const formats::Section& section : formats::sectionTable()) {
            index.sections.push_back({section.code, browseTopics(section)});
        }
        add(std::string(formats::browseIndexFile), formats::encodeBrowseIndex(index));
    }

    void addWordSearch() {
        const WordIndex index = makeWordIndex(content_);
        add(std::string(formats::wordIndexFile), formats::encodeWordIndex(index.words));
        add(std::string(formats::alternativesFile), formats::encodeAlternatives(index.alternatives));
        add(std::string(formats::firstLettersFile), formats::encodeFirstLetters(index.firstLetters));
        add(std::string(formats::occurrencesFile), formats::encodeOccurrences(index.occurrences));
    }

  private:
    // The periodic table opens the page of an element by its page id, even where the page is an entry.
    void addElementTitles(std::vector<formats::SectionTitleRecord>& records) const {
        for (int number = 1; number <= controls::elementCount; ++number) {
            if (const PageSource* page = elementPage(content_, number))
                records.push_back({page->title.text, page->number});
        }
    }

    std::vector<formats::BrowseTopic> browseTopics(const formats::Section& section) const {
        std::vector<formats::BrowseTopic> topics;
        for (const PageSource* page : topicsOf(content_, section)) {
            formats::BrowseTopic topic{page->number, page->number, page->title.text, {}};
            for (const PageSource* entry : entriesOf(content_, *page)) {
                topic.entries.push_back({entry->number, entry->title.text});
            }
            topics.push_back(std::move(topic));
        }
        return topics;
    }

    void add(const std::string& name, std::optional<std::string> image) {
        const SourcePlace place{name};
        if (!image) {
            diagnostics_.error(place, say::indexIsTooLarge);
        } else {
            outputs_.add(name, std::move(*image), place, diagnostics_);
        }
    }

    const Content& content_;
    OutputFiles& outputs_;
    Diagnostics& diagnostics_;
};

}  // namespace

void addIndexFiles(const Content& content, OutputFiles& outputs, Diagnostics& diagnostics) {
    IndexFileMaker maker(content, outputs, diagnostics);
    maker.addSectionTitles();
    maker.addTitleLists();
    maker.addElementIndex();
    maker.addBrowseIndex();
    maker.addWordSearch();
}

}  // namespace contentc
