#include "tools/contentc/commands/Counts.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <string>

#include "controls/elements/Element.h"
#include "formats/SectionTable.h"
#include "formats/TitleLists.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/ContentCompiler.h"
#include "tools/contentc/commands/CountMessages.h"
#include "tools/contentc/render/MakeMedia.h"
#include "tools/contentc/source/Content.h"

namespace contentc {
namespace {

using Counts = std::vector<std::pair<std::string, std::ptrdiff_t>>;

class CountTable {
  public:
    explicit CountTable(Language language) : language_(language) {}

    std::string word(const Message& message) const { return Phrase{message, {}}.in(language_); }

    void tell(const Message& heading, const Counts& counts) const {
        std::cout << word(heading) << '\n';
        for (const auto& [name, count] : counts) {
            const std::string number = std::to_string(count);
            constexpr std::size_t width = 6;
            std::cout << std::string(number.size() < width ? width - number.size() : 0, ' ') << number << "  "
                      << name << '\n';
        }
    }

  private:
    Language language_;
};

void addTotal(Counts& counts, const CountTable& table) {
    std::ptrdiff_t all = 0;
    for (const auto& [name, count] : counts) all += count;
    counts.emplace_back(table.word(say::countsTotal), all);
}

void tellTopics(const Content& content, const CountTable& table) {
    Counts topics;
    for (const formats::Section& section : formats::sectionTable()) {
        const auto isTopic = [&section](const PageSource& page) {
            return page.section == &section && page.kind == PageKind::topic;
        };
        topics.emplace_back(platform::toUtf8(section.displayName),
                            std::ranges::count_if(content.pages, isTopic));
    }
    addTotal(topics, table);
    table.tell(say::topicsHeading, topics);
}

void tellEntries(const Content& content, const CountTable& table) {
    std::map<std::string, std::ptrdiff_t> byList;
    for (const PageSource& page : content.pages) {
        const auto file = formats::titleListFile(formats::listNumberOf(page.number));
        if (page.kind == PageKind::entry && file) ++byList[std::string(file->substr(0, file->find('.')))];
    }
    Counts entries(byList.begin(), byList.end());
    addTotal(entries, table);
    table.tell(say::entriesHeading, entries);
}

void tellElements(const Content& content, const SourceTree& tree, const CountTable& table) {
    std::ptrdiff_t own = 0;
    std::ptrdiff_t made = 0;
    for (int number = 1; number <= controls::elementCount; ++number) {
        const PageSource* page = elementPage(content, number);
        const bool isMade =
            page && tree.families && page->place.file.starts_with(tree.families->place().file);
        if (page) ++(isMade ? made : own);
    }
    table.tell(say::elementsHeading,
               {{table.word(say::withOwnText), own}, {table.word(say::madeFromData), made}});
}

void tellOthers(const Content& content, const SourceTree& tree, const CountTable& table) {
    const auto isPicture = [](const SourceFile& file) { return takenExtension(file.path) != ".bmp"; };
    const auto pictures = std::ranges::count_if(tree.pictures, isPicture);
    table.tell(say::otherHeading,
               {{table.word(say::termsCounted), std::ssize(content.terms)},
                {table.word(say::moleculesCounted), std::ssize(tree.molecules)},
                {table.word(say::filmsCounted), std::ssize(tree.videos)},
                {table.word(say::drawingsCounted), std::ssize(tree.drawnDrawings)},
                {table.word(say::picturesCounted), pictures - std::ssize(tree.drawnDrawings)},
                {table.word(say::dataSetsCounted), std::ssize(tree.dataSets)}});
}

/// Counts the tools on the finished pages, each as often as it stands there.
void tellTools(const OutputFiles& files, const CountTable& table) {
    constexpr std::string_view sign = "DATA-TOOL=\"";
    std::map<std::string, std::ptrdiff_t> tools;
    for (const auto& [path, file] : files.files()) {
        for (std::size_t at = 0; (at = file.bytes.find(sign, at)) != std::string::npos;) {
            at += sign.size();
            ++tools[file.bytes.substr(at, file.bytes.find('"', at) - at)];
        }
    }
    table.tell(say::toolsHeading, {tools.begin(), tools.end()});
}

}  // namespace

bool tellCounts(const Options& options) {
    Diagnostics found;
    SourceTree tree = readSourceTree(options.sources, found);
    pretendMedia(tree);
    const Content content = readContent(tree, found);
    const CountTable table(localeLanguage());
    tellTopics(content, table);
    tellEntries(content, table);
    tellElements(content, tree, table);
    tellOthers(content, tree, table);
    const auto files = compileContent(tree, found);
    if (files) tellTools(*files, table);
    if (files) return true;
    for (const Diagnostic& diagnostic : found.sorted())
        std::cerr << toLine(diagnostic, localeLanguage()) << '\n';
    return false;
}

}  // namespace contentc
