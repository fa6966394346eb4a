#include "platform/dialogs/GrowingControls.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace windows_test {

namespace {

using platform::GrowingControls;

TEST(GrowingControlsTest, RoomGoesToOneControlAndThoseBesideAndBelowFollow) {
    QWidget dialog;
    struct Case {
        const char* what;
        QRect smallest;
        QRect grown;
    };
    const std::vector<Case> cases = {
        {"the growing list", {100, 20, 200, 100}, {100, 20, 250, 130}},
        {"a field left of its upper half", {5, 20, 80, 20}, {5, 20, 80, 20}},
        {"a list left of it", {5, 50, 80, 70}, {5, 50, 80, 100}},
        {"a box below on the left", {5, 130, 80, 10}, {5, 160, 80, 10}},
        {"a button below it", {110, 130, 60, 20}, {160, 160, 60, 20}},
    };
    std::vector<QWidget*> widgets;
    for (const Case& each : cases) {
        widgets.push_back(std::make_unique<QWidget>(&dialog).release());
        widgets.back()->setGeometry(each.smallest);
    }
    GrowingControls growing;
    growing.begin(widgets, *widgets.front(), {310, 160});
    growing.follow({360, 190});
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(widgets[i]->geometry(), cases[i].grown) << cases[i].what;
    }
}

}  // namespace

}  // namespace windows_test
