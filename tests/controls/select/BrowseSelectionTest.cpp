#include "controls/select/model/BrowseSelection.h"

#include <gtest/gtest.h>

#include "tests/controls/select/SampleIndex.h"

using namespace controls::select;
using namespace platform::literals;

namespace {

class BrowseSelectionTest : public testing::Test {
  protected:
    BrowseSelectionTest() {
        selection_.setIndex(sample::index());
        selection_.setSection(sample::elements);
    }

    BrowseSelection selection_;
};

TEST_F(BrowseSelectionTest, AnswersEveryPlaceThatNamesAPage) {
    const struct {
        Place asked;
        ChoiceEvents answer;
        std::optional<Row> marked;
    } cases[] = {
        {{410010, 0}, {PageChosen{410011, 410010}}, Row{1, {}}},
        {{410010, 10011}, {ItemChosen{10011}}, Row{1, 1}},
        {{410000, 0}, {PageChosen{410000, 410000}}, Row{0, {}}},
        // An entry that the topic lacks leaves the mark on the topic; an unknown topic, on the entry.
        {{410020, 10003}, {ItemChosen{10003}}, Row{2, {}}},
        {{999, 10003}, {ItemChosen{10003}}, Row{1, 0}},
        {{410777, 0}, {PageChosen{410777, 410777}}, {}},
        {{410777, 778}, {ItemChosen{778}}, {}},
        {{410010, -5}, {PageChosen{410011, 410010}}, Row{1, {}}},
        // What names no page changes nothing; a place of another section brings that section.
        {{0, 0}, {}, Row{1, {}}},
        {{-1, 0}, {}, Row{1, {}}},
        {{320010, 80001}, {ItemChosen{80001}}, Row{1, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(selection_.show(c.asked), c.answer) << c.asked.pageId << ' ' << c.asked.itemCode;
        EXPECT_EQ(selection_.shownRow(), c.marked) << c.asked.pageId << ' ' << c.asked.itemCode;
    }
    EXPECT_EQ(selection_.section(), sample::history);
}

TEST_F(BrowseSelectionTest, StartPagesAnswerUnderTheirOwnNumber) {
    formats::BrowseIndex index = sample::index();
    index.sections[1].topics[0].pageNumber = 410999;
    selection_.setIndex(index);
    selection_.setSection(sample::elements);
    for (const std::int32_t start : {410000, 170070, 370001, 550000}) {
        EXPECT_EQ(selection_.show({start, 0}), (ChoiceEvents{PageChosen{start, start}}));
    }
}

TEST_F(BrowseSelectionTest, ASectionStartsAtItsStartPageWithoutAnEvent) {
    selection_.show({410020, 0});
    selection_.setSection(sample::elements);
    EXPECT_EQ(selection_.shownRow(), (Row{0, {}}));
    EXPECT_TRUE(selection_.list().opened(2)) << "the same section keeps what is opened";
    selection_.setSection(sample::history);
    EXPECT_EQ(selection_.shownRow(), (Row{0, {}}));
    selection_.setSection(8);
    EXPECT_EQ(selection_.shownRow(), std::nullopt);
    EXPECT_TRUE(selection_.list().topics().empty());
}

TEST_F(BrowseSelectionTest, AChosenEntryBringsItsTopicWhenTheHostShowsAnother) {
    EXPECT_EQ(selection_.choose({1, 0}), (ChoiceEvents{PageChosen{410011, 410010}, ItemChosen{10003}}));
    EXPECT_EQ(selection_.choose({1, 1}), ChoiceEvents{ItemChosen{10011}});
    EXPECT_EQ(selection_.choose({1, {}}), (ChoiceEvents{PageChosen{410011, 410010}}));
    EXPECT_EQ(selection_.shown(), (Place{410010, 0}));
    EXPECT_EQ(selection_.pageTitle(320010), "Ο Λαβουαζιέ και ο νόμος"_gr) << "of another section";
    EXPECT_EQ(selection_.choose({2, 0}), (ChoiceEvents{PageChosen{410020, 410020}, ItemChosen{20001}}));
    selection_.setSection(sample::history);
    EXPECT_EQ(selection_.choose({0, 0}), (ChoiceEvents{PageChosen{740001, 740001}}))
        << "an entry of a start page is a page of its own";
    EXPECT_EQ(selection_.shownRow(), (Row{0, 0}));
    EXPECT_EQ(selection_.pageTitle(740001), "Χρονολόγιο"_gr);
}

}  // namespace
