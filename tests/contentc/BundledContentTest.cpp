#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "formats/BrowseIndex.h"
#include "formats/PageNumber.h"
#include "formats/WordRecords.h"
#include "platform/text/GreekLiteral.h"
#include "tools/contentc/Content.h"

namespace {

namespace fs = std::filesystem;

std::string dataFile(std::string name) {
    std::ranges::replace(name, '\\', '/');
    std::ifstream stream(fs::path(CONTENT_DATA) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class BundledContent : public testing::Test {
  protected:
    BundledContent() {
        contentc::Diagnostics diagnostics;
        content = contentc::readContent(contentc::readSourceTree({CONTENT_SOURCES, {}, {}}, diagnostics),
                                        diagnostics);
    }

    contentc::Content content;
};

TEST_F(BundledContent, EveryPageHasItsFileAtItsPath) {
    ASSERT_GE(content.pages.size(), 7U);
    for (const contentc::PageSource& page : content.pages) {
        const std::string bytes = dataFile(*formats::pagePath(page.number));
        EXPECT_NE(bytes.find("</HTML>\r\n"), std::string::npos) << page.place.file;
        EXPECT_EQ(bytes.find("{{"), std::string::npos) << page.place.file;
    }
    EXPECT_NE(dataFile("a.htm"), "");
}

TEST_F(BundledContent, EveryOccurrenceIsOfAKnownWordAndOnAKnownPage) {
    const auto words = formats::decodeWordIndex(dataFile("words.ndx"));
    const auto browse = formats::decodeBrowseIndex(dataFile("select.ndx"));
    ASSERT_TRUE(browse);
    const std::string occurrences = dataFile("words.dat");
    ASSERT_FALSE(occurrences.empty());
    for (std::size_t at = 0; at < occurrences.size(); at += formats::kOccurrenceRecordSize) {
        const auto found = formats::decodeOccurrence(std::string_view(occurrences).substr(at));
        ASSERT_TRUE(found);
        EXPECT_TRUE(std::ranges::binary_search(words, found->word)) << at;
        const formats::BrowseSection* section = formats::findSection(*browse, found->sectionCode);
        ASSERT_TRUE(section && formats::findTopic(*section, found->pageId)) << found->pageId;
        EXPECT_TRUE(found->itemCode == 0 || formats::findEntry(*browse, found->itemCode)) << found->itemCode;
    }
}

TEST_F(BundledContent, FormsOfAWordAreInOneGroupAndOtherWordsInAnother) {
    using namespace platform::literals;
    const std::string records = dataFile("words.alt");
    const auto groupOf = [&](std::string_view word) {
        for (std::size_t at = 0; at < records.size(); at += formats::kAlternativeRecordSize) {
            const std::string_view record = std::string_view(records).substr(at);
            if (formats::alternativeWord(record) == word) return formats::alternativeGroup(record);
        }
        return 0;
    };
    EXPECT_EQ(groupOf("μόριο"_gr), groupOf("μορίων"_gr));
    EXPECT_EQ(groupOf("οξέα"_gr), groupOf("οξύ"_gr));
    EXPECT_NE(groupOf("νερό"_gr), 0);
    EXPECT_EQ(groupOf("νερό"_gr), groupOf("νερού"_gr));
    EXPECT_NE(groupOf("αέρια"_gr), groupOf("αέρα"_gr));
    EXPECT_EQ(groupOf("και"_gr), 0);
}

}  // namespace
