#include "src/view/KeyboardChoice.h"

#include <gtest/gtest.h>

#include <set>

#include "src/view/MainMenuLayout.h"

namespace kalyxo {
namespace {

using platform::CPoint;

/// Which way an arrow key goes, by its letter.
platform::UINT arrow(char way) {
    return way == 'L'   ? platform::VK_LEFT
           : way == 'R' ? platform::VK_RIGHT
           : way == 'U' ? platform::VK_UP
                        : platform::VK_DOWN;
}

TEST(KeyboardChoiceTest, GoesByTheArrowsFromSlotToSlotAndAreaToArea) {
    const int area = OpenableItems::IndexOfArea(0);
    const struct {
        const char* what;
        bool menu;
        int selected;
        std::string_view keys;
        std::vector<int> items;
    } cases[] = {
        {"along the bar, past the filler", false, 7, "RRR", {8, 9, 10}},
        {"the bar's ends", false, 1, "LL", {0, -1}},
        {"over the selected slot", false, 3, "RLL", {4, 2, 1}},
        {"nothing above and below the bar alone", false, 3, "UD", {-1, -1}},
        {"round the menu",
         true,
         9,
         "DDDDRUULLLU",
         {area + 3, area + 2, area + 1, area + 0, area + 8, area + 7, area + 6, area + 5, area + 4, area + 3,
          3}},
        {"along the upper row and down",
         true,
         9,
         "RRRRURD",
         {area + 3, area + 4, area + 5, area + 6, area + 5, area + 6, area + 7}},
        {"no area farther out", true, 9, "LLLDD", {area + 3, area + 2, -1, area + 1, area + 0}},
    };
    BarLayout bar;
    bar.SetWidth(636);
    for (const auto& row : cases) {
        const OpenableItems items(bar, row.selected, row.menu ? std::optional(CPoint{4, 60}) : std::nullopt);
        std::vector<int> passed;
        int at = -1;
        for (const char key : row.keys) {
            passed.push_back(KeyboardChoice::Next(items, at, arrow(key)));
            if (passed.back() >= 0) at = passed.back();
        }
        EXPECT_EQ(passed, row.items) << row.what;
    }
}

/// From wherever the arrows come in, they come to everything but the selected slot.
TEST(KeyboardChoiceTest, ComesToEverything) {
    for (const int width : {560, 636, 1920}) {
        BarLayout bar;
        bar.SetWidth(width);
        const OpenableItems items(bar, kMainMenuSlot, MainMenuLayout::Origin({width, 400}, {628, 384}));
        std::set<int> reached;
        std::vector<int> waiting = {KeyboardChoice::Next(items, -1, platform::VK_DOWN)};
        while (!waiting.empty()) {
            const int item = waiting.back();
            waiting.pop_back();
            if (item < 0 || !reached.insert(item).second) continue;
            for (const char key : {'L', 'R', 'U', 'D'}) {
                waiting.push_back(KeyboardChoice::Next(items, item, arrow(key)));
            }
        }
        EXPECT_EQ(reached.size(), items.Places().size() - 1) << width;
        EXPECT_FALSE(reached.contains(kMainMenuSlot));
    }
}

}  // namespace
}  // namespace kalyxo
