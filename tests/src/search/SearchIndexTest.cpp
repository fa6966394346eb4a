#include "src/search/SearchIndex.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/text/GreekLiteral.h"
#include "src/search/IndexFileLimit.h"
#include "tests/src/search/SearchFolder.h"

namespace kalyxo {
namespace {

using namespace platform::literals;
using namespace std::string_literals;
using Words = std::vector<std::string>;

class SearchIndexTest : public testing::Test {
  protected:
    SearchIndex index() const { return {folder_.files, "D:\\"}; }

    /// The page ids of the hits of one search run.
    std::vector<std::int32_t> pagesOf(const Words& words) const {
        SearchIndex searched = index();
        searched.ResetHits();
        for (const std::string& word : words) searched.CollectHits(word);
        std::vector<std::int32_t> pages;
        pages.reserve(searched.HitCount());
        for (std::size_t i = 0; i < searched.HitCount(); ++i) pages.push_back(searched.HitAt(i).pageId);
        return pages;
    }

    Words formsOf(std::string_view word) const {
        SearchIndex searched = index();
        searched.LoadAlternatives();
        return searched.ExpandAlternatives(word, true);
    }

    SearchFolder folder_;
};

TEST_F(SearchIndexTest, WordsStandInFileOrder) {
    folder_.put("D:\\words.ndx",
                "b"s + std::string(31, '\0') + "a\0rest"s + std::string(26, '\0') + std::string(32, 'x'));
    EXPECT_EQ(index().LoadWordIndex(), (Words{"b", "a", std::string(32, 'x')}));
}

TEST_F(SearchIndexTest, FormsAreThoseOfTheGroupOfTheFirstRecord) {
    folder_.putAlternatives(
        {{7, "acid"}, {7, "acids"}, {9, "acid"}, {9, "base"}, {7, "acids"}, {7, "acidic"}, {-1, "stray"}});
    EXPECT_EQ(formsOf("acid"), (Words{"acid", "acids", "acidic"}));
    EXPECT_EQ(formsOf("acidic"), (Words{"acidic", "acid", "acids"}));
    EXPECT_EQ(formsOf("base"), (Words{"base", "acid"}));
    EXPECT_EQ(formsOf("Acid"), (Words{"Acid", "stray"}));
    EXPECT_EQ(index().ExpandAlternatives("acid", false), Words{"acid"});
}

TEST_F(SearchIndexTest, FormWithoutNulEndsWithItsFieldAndAPartialRecordIsNone) {
    folder_.put("D:\\words.alt", "\1\0\0\0"s + std::string(26, 'x') + "\1\0\0\0"s + std::string(25, 'y'));
    EXPECT_EQ(formsOf(std::string(26, 'x')), Words{std::string(26, 'x')});
    EXPECT_EQ(formsOf(std::string(25, 'y')), Words{std::string(25, 'y')});
}

TEST_F(SearchIndexTest, FirstLetterTableKeepsTwoHundredRecordsAndSaysWhenThereAreMore) {
    const struct {
        std::size_t bytes, kept;
        bool fits;
    } cases[] = {{0, 0, true},
                 {7, 0, true},
                 {17, 2, true},
                 {200 * 8, 200, true},
                 {201 * 8 - 1, 200, true},
                 {201 * 8, 200, false},
                 {5000 * 8, 200, false}};
    for (const auto& [bytes, kept, fits] : cases) {
        folder_.put("D:\\words.pr1", std::string(bytes, 'a'));
        SearchIndex loaded = index();
        EXPECT_EQ(loaded.LoadFirstLetterTable(), fits) << bytes;
        EXPECT_EQ(loaded.FirstLetters().size(), kept) << bytes;
    }
}

TEST_F(SearchIndexTest, OccurrenceIsAHitWhenItsWordIsTheSameToTheByte) {
    const std::string long31(31, 'w');
    folder_.putOccurrences({{"acid", 1, 10003, 2},
                            {"Acid", 2, 0, 2},
                            {"acids", 3, 0, 2},
                            {"aci", 4, 0, 2},
                            {"", 5, 0, 2},
                            {std::string("οξύ"_gr), 6, 0, 2},
                            {std::string("οξυ"_gr), 7, 0, 2},
                            {long31, 8, 0, 2},
                            {"acid", -9, -1, -3}});
    EXPECT_EQ(pagesOf({"acid"}), (std::vector{1, -9}));
    EXPECT_EQ(pagesOf({""}), std::vector{5});
    EXPECT_EQ(pagesOf({std::string("οξύ"_gr)}), std::vector{6});
    EXPECT_EQ(pagesOf({long31}), std::vector{8});
    EXPECT_TRUE(pagesOf({long31 + 'w'}).empty());
    EXPECT_TRUE(pagesOf({std::string(100, 'w')}).empty());
    SearchIndex searched = index();
    searched.CollectHits("acid");
    EXPECT_EQ(searched.HitAt(0), (SearchHit{1, 10003, 2}));
    EXPECT_EQ(searched.HitAt(1), (SearchHit{-9, -1, -3}));
}

TEST_F(SearchIndexTest, OccurrenceWithoutNulIsAWordAsLongAsItsFieldAndAPartialRecordIsNone) {
    const std::string tail = "\5\0\0\0\0\0\0\0\1\0\0"s;
    folder_.put("D:\\words.dat", std::string(32, 'w') + tail + std::string(32, 'w') + tail.substr(0, 10));
    EXPECT_EQ(pagesOf({std::string(32, 'w')}), std::vector{5});
    EXPECT_TRUE(pagesOf({std::string(31, 'w')}).empty());
}

// The file is read in blocks: records at their seams must not be lost, and all of it is scanned.
TEST_F(SearchIndexTest, EveryRecordOfALongFileIsLookedAt) {
    std::vector<formats::OccurrenceRecord> records(10'007, {"other", 0, 0, 1});
    std::vector<std::int32_t> expected;
    for (std::size_t i = 0; i < records.size(); i += 37) {
        records[i] = {"wanted", static_cast<std::int32_t>(i), 0, 1};
        expected.push_back(records[i].pageId);
    }
    records.back() = {"wanted", -1, 0, 1};
    expected.push_back(-1);
    folder_.putOccurrences(records);
    EXPECT_EQ(pagesOf({"wanted"}), expected);
}

TEST_F(SearchIndexTest, FourHundredHitsAreTheMostOfOneRunOverAllItsWords) {
    std::vector<formats::OccurrenceRecord> records;
    std::vector<std::int32_t> expected;
    for (std::int32_t i = 0; i < 401; ++i) {
        records.push_back({"many", i, 0, 0});
        records.push_back({i % 4 == 0 ? "few" : "x", 1000 + i, 0, 1});
        if (i % 4 == 0) expected.push_back(1000 + i);
    }
    folder_.putOccurrences(records);
    for (std::int32_t i = 0; expected.size() < 400; ++i) expected.push_back(i);
    EXPECT_EQ(pagesOf({"few", "many", "few"}), expected);
    EXPECT_EQ(pagesOf({"many"}).size(), 400U);

    SearchIndex searched = index();
    searched.CollectHits("many");
    searched.ResetHits();
    EXPECT_EQ(searched.HitCount(), 0U);
    searched.CollectHits("few");
    EXPECT_EQ(searched.HitCount(), 101U);
}

TEST_F(SearchIndexTest, FileMayGrowAndShrinkWhileItIsOpen) {
    folder_.putOccurrences({{"a", 1, 0, 1}, {"a", 2, 0, 1}});
    SearchIndex searched = index();
    std::filesystem::resize_file(folder_.host("D:\\words.dat"), 43 + 10);
    searched.CollectHits("a");
    EXPECT_EQ(searched.HitCount(), 1U);
    std::ofstream(folder_.host("D:\\words.dat"), std::ios::binary | std::ios::trunc)
        << *formats::encodeOccurrences(std::vector<formats::OccurrenceRecord>(3, {"a", 3, 0, 1}));
    searched.ResetHits();
    searched.CollectHits("a");
    EXPECT_EQ(searched.HitCount(), 3U);
}

TEST_F(SearchIndexTest, FilesBeyondTheLimitCountAsEmptyAndOccurrencesHaveNone) {
    for (const std::size_t size : {kMaxIndexFileBytes, kMaxIndexFileBytes + 1}) {
        for (const char* name : {"words.ndx", "words.alt", "words.pr1", "words.dat"}) {
            folder_.put("D:\\"s + name, "");
            std::filesystem::resize_file(folder_.host("D:\\"s + name), size);
        }
        const bool taken = size == kMaxIndexFileBytes;
        SearchIndex searched = index();
        EXPECT_EQ(searched.LoadWordIndex().size(), taken ? size / 32 : 0);
        searched.LoadAlternatives();
        EXPECT_EQ(searched.ExpandAlternatives("", true).size(), 1U);
        EXPECT_FALSE(searched.LoadFirstLetterTable());
        searched.CollectHits("");
        EXPECT_EQ(searched.HitCount(), 400U);
    }
}

}  // namespace
}  // namespace kalyxo
