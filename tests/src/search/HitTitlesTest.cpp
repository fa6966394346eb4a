#include "src/search/HitTitles.h"

#include <gtest/gtest.h>

#include "platform/text/GreekLiteral.h"
#include "src/search/ResultRows.h"
#include "tests/src/search/SearchFolder.h"

namespace kalyxo {
namespace {

using namespace platform::literals;
using namespace std::string_literals;

class HitTitlesTest : public testing::Test {
  protected:
    HitTitlesTest() {
        folder_.putTitles("struct", {{"Water", 370010}, {"Again", 370010}, {"", 370020}});
        folder_.putTitles("history", {{"Past", 320010}});
        folder_.putList("elem.ttl", {"one", "two", "three", ""});
        folder_.putList("history.ttl", {"h1", "h2", "h3", "h4", "h5"});
        folder_.put("D:\\comp.ttl", std::string(60, 'c') + std::string(59, 'd'));
    }

    std::vector<ResultRow> rowsOf(const std::vector<std::string>& words,
                                  const platform::ProgressStep& step = {}) {
        SearchIndex index(folder_.files, "D:\\");
        return FindRows(index, words, titles_, step);
    }

    SearchFolder folder_;
    HitTitles titles_{folder_.files, "D:\\"};
};

TEST_F(HitTitlesTest, EntryTitleIsInTheListOfItsNumber) {
    const struct {
        std::int32_t itemCode;
        const char* title;
    } cases[] = {{10003, "three"}, {10004, ""},       {0, "?"},          {10005, "?"},
                 {40001, "?"},     {2147483647, "?"}, {-2147483647, "?"}};
    for (const auto& [itemCode, title] : cases)
        EXPECT_EQ(titles_.LookUpEntryTitle(itemCode), title) << itemCode;
    EXPECT_EQ(titles_.LookUpEntryTitle(20001), std::string(60, 'c'));
}

TEST_F(HitTitlesTest, TextsOfAHit) {
    const std::string structures("Δομές"_gr);
    const std::string past("Ιστορία"_gr);
    const struct {
        SearchHit hit;
        HitTexts texts;
    } cases[] = {
        {{370010, 0, 2}, {"Water", structures, ""}},
        {{370010, 10001, 2}, {"one", structures, "Water"}},
        {{370010, -10001, 2}, {"", structures, "Water"}},
        {{370010, 30001, 2}, {"?", structures, "Water"}},
        {{5, 0, 2}, {"", structures, ""}},
        {{370010, 0, 1}, {"", std::string("Αλλαγή των υλικών"_gr), ""}},
        {{5, 740001, 5}, {"h1", past, ""}},
        {{320010, 0, 5}, {"Past", past, ""}},
        {{-320010, 1, 5}, {"?", past, ""}},
    };
    for (const auto& [hit, texts] : cases)
        EXPECT_EQ(titles_.MakeHitTexts(hit), texts) << hit.pageId << ' ' << hit.itemCode;
    for (const int section : {-32768, -1, 0, 8, 32767})
        EXPECT_EQ(titles_.MakeHitTexts({370010, 0, static_cast<std::int16_t>(section)}), std::nullopt);
}

TEST_F(HitTitlesTest, HitsThatReadTheSameAreOneRowOfTheFirst) {
    folder_.putOccurrences({{"b", 370010, 0, 2},
                            {"a", 370010, 0, 2},
                            {"a", 370010, 0, 8},
                            {"b", 370010, 10002, 2},
                            {"a", 370010, 10002, 2},
                            {"b", 320010, 0, 5}});
    const auto rows = rowsOf({"a", "b"});
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].texts.name, "Water");
    EXPECT_EQ(rows[0].hit, 0U);
    EXPECT_EQ(rows[1].texts.name, "two");
    EXPECT_EQ(rows[1].hit, 2U);
    EXPECT_EQ(rows[2].texts.name, "Past");
    EXPECT_EQ(rows[2].hit, 5U);
}

TEST_F(HitTitlesTest, InvisibleHitsCountTowardsTheMost) {
    std::vector<formats::OccurrenceRecord> records(399, {"a", 1, 0, 0});
    records.push_back({"a", 370010, 0, 2});
    records.push_back({"a", 320010, 0, 5});
    folder_.putOccurrences(records);
    const auto rows = rowsOf({"a"});
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].hit, 399U);
}

TEST_F(HitTitlesTest, CancelledSearchHasNoRowsAndReadsNoFurther) {
    std::vector<formats::OccurrenceRecord> records(10'000, {"other", 1, 0, 2});
    records.front() = {"a", 370010, 0, 2};
    folder_.putOccurrences(records);
    int steps = 0;
    const auto cancelAt = [&steps](int last) {
        return [&steps, last](auto, auto) { return ++steps < last; };
    };
    const std::vector<std::string> words = {"a", "b", "c", "d"};
    EXPECT_EQ(rowsOf(words, cancelAt(1'000)).size(), 1U);
    for (int last = steps; last > 0; --last) {
        steps = 0;
        EXPECT_EQ(rowsOf(words, cancelAt(last)).size(), 0U) << last;
        EXPECT_EQ(steps, last);
    }
}

TEST(CompareCellsTest, BytesAreUnsignedAndCaseAndAccentsCount) {
    const std::string_view ascending[] = {"", "A", "AB", "B", "a", "b", "Α"_gr, "ά"_gr, "α"_gr, "ω"_gr};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j) {
            const int order = CompareCells(ascending[i], ascending[j]);
            EXPECT_EQ((order > 0) - (order < 0), (i > j) - (i < j)) << i << ' ' << j;
        }
    }
}

}  // namespace
}  // namespace kalyxo
