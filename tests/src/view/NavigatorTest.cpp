#include "src/view/Navigator.h"

#include <gtest/gtest.h>

#include "tests/src/view/ContentHostProbe.h"

namespace kalyxo {
namespace {

using Calls = std::vector<std::string>;

class NavigatorTest : public testing::Test {
  protected:
    int places() const { return host.navigator.Places().LastIndex() + 1; }

    ContentHostProbe host;
    Navigator& navigator = host.navigator;
};

TEST_F(NavigatorTest, OpensThePageBeforeThePanesAreLaidOut) {
    navigator.OpenStartPage(1);
    EXPECT_EQ(host.takeCalls(), (Calls{"section 1", "page 170070", "panes"}));
    EXPECT_EQ(navigator.Address(), (PageAddress{1, 170070, 0}));
    navigator.OpenStartPage(2);
    EXPECT_EQ(host.takeCalls(), (Calls{"section 2", "page 370001"})) << "the panes stand";
    navigator.OpenTopic({3, 290123, 290124});
    EXPECT_EQ(host.takeCalls(), (Calls{"section 3", "item 290123/290124", "page 290123", "page 290124"}));
    EXPECT_EQ(navigator.Address(), (PageAddress{3, 290123, 290124}));
    EXPECT_EQ(places(), 4);
}

TEST_F(NavigatorTest, GoesBackAndForwardWithoutRecording) {
    navigator.OpenStartPage(3);
    navigator.OpenTopic({3, 290123, 0});
    host.ShowPeriodicTable();
    host.ShowDataAnalyser(nullptr);
    ASSERT_EQ(places(), 4);
    const struct {
        void (Navigator::*way)();
        Calls calls;
    } steps[] = {
        {&Navigator::GoForward, {}},
        {&Navigator::GoBack, {"table"}},
        {&Navigator::GoBack,
         {"section 3", "panes", "item 290123/0", "page 290123", "item 290123/0", "page 290123"}},
        {&Navigator::GoBack, {"section 3", "page 290000", "item 290000/0", "page 290000"}},
        {&Navigator::GoBack, {}},
        {&Navigator::GoForward,
         {"section 3", "item 290123/0", "page 290123", "item 290123/0", "page 290123"}},
        {&Navigator::GoForward, {"table"}},
        {&Navigator::GoForward, {"analyser"}},
    };
    host.takeCalls();
    for (const auto& step : steps) {
        (navigator.*step.way)();
        EXPECT_EQ(host.takeCalls(), step.calls);
        EXPECT_EQ(places(), 4);
    }
    EXPECT_EQ(navigator.Address(), (PageAddress{3, 290123, 0})) << "which page mode goes on from";
}

}  // namespace
}  // namespace kalyxo
