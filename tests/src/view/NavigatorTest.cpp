#include "src/view/Navigator.h"

#include <gtest/gtest.h>

namespace kalyxo {
namespace {

using Calls = std::vector<std::string>;

/// Writes down what it is asked to show. Like the browse selection, it answers when it is asked for a topic.
class NavigatorTest : public testing::Test, public ContentHost {
  protected:
    bool EnterPageMode(std::int16_t sectionCode) override {
        calls_.push_back("section " + std::to_string(sectionCode));
        return !std::exchange(pageMode_, true);
    }
    void LayOutPage() override { calls_.emplace_back("panes"); }
    void ShowPage(std::int32_t pageNumber, double) override {
        calls_.push_back("page " + std::to_string(pageNumber));
    }
    double Scrolled() const override { return 0; }
    void ShowItem(std::int32_t pageId, std::int32_t itemCode) override {
        calls_.push_back("item " + std::to_string(pageId) + "/" + std::to_string(itemCode));
        navigator_.OnPageChosen(pageId, pageId);
        if (itemCode != 0) navigator_.OnItemChosen(itemCode);
    }
    void ShowPeriodicTable() override {}
    void ShowDataAnalyser(const CBMDataAn*) override {}

    /// What it was asked since the last call.
    Calls takeCalls() { return std::exchange(calls_, {}); }

    Navigator navigator_{*this};
    Calls calls_;
    bool pageMode_ = false;
};

TEST_F(NavigatorTest, OpensThePageBeforeThePanesAreLaidOut) {
    navigator_.OpenStartPage(1);
    EXPECT_EQ(takeCalls(), (Calls{"section 1", "page 170070", "panes"}));
    EXPECT_EQ(navigator_.Address(), (PageAddress{1, 170070, 0}));
    navigator_.OpenStartPage(2);
    EXPECT_EQ(takeCalls(), (Calls{"section 2", "page 370001"})) << "the panes stand";
    navigator_.OpenTopic({3, 290123, 290124});
    EXPECT_EQ(takeCalls(), (Calls{"section 3", "item 290123/290124", "page 290123", "page 290124"}));
    EXPECT_EQ(navigator_.Address(), (PageAddress{3, 290123, 290124}));
    EXPECT_EQ(navigator_.Places().LastIndex(), 3);
    navigator_.OpenPlace({3, 300000, 0});
    EXPECT_EQ(takeCalls(), (Calls{"section 3", "page 300000"})) << "every multiple of 10000 at once";
}

}  // namespace
}  // namespace kalyxo
