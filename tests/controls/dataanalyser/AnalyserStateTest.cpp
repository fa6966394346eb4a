#include <bit>
#include <limits>

#include "controls/dataanalyser/graph/GraphChart.h"
#include "controls/dataanalyser/graph/GraphMarks.h"
#include "controls/dataanalyser/model/AnalyserState.h"
#include "tests/controls/dataanalyser/AnalyserTest.h"

namespace controls::dataanalyser {
namespace {

using platform::InvokeKind;

TEST(AnalyserCreation, ReadsAndShowsNothingBeforeItIsShown) {
    RecordingSite site;  // asking it for files ends the test
    AnalyserComponent component(site, nullptr, linkedGraphParts);
    call(component, 10, std::int32_t{1103}, std::string("D:\\"));
    EXPECT_EQ(property<std::int16_t>(component, 2), 0);
    EXPECT_TRUE(component.widget().children().isEmpty());
}

TEST_F(AnalyserTest, NonsenseFallsBack) {
    for (const int code : {-7, 17, 32767}) {
        put(component_, 3, static_cast<std::int16_t>(code));
        EXPECT_EQ(property<std::int16_t>(component_, 3), -1);
        put(component_, 7, static_cast<std::int16_t>(code));
        EXPECT_EQ(property<std::int16_t>(component_, 7), 0);
        call(component_, 15, static_cast<std::int16_t>(code));
        EXPECT_EQ(ask<std::int16_t>(component_, 13, InvokeKind::method), 0);
        call(component_, 20, static_cast<std::int16_t>(code < 0 ? code : 900), std::int32_t{100});
        EXPECT_EQ(ask<std::int32_t>(component_, 21, InvokeKind::method,
                                    static_cast<std::int16_t>(code < 0 ? code : 900)),
                  0);
    }
    put(component_, 4, std::int32_t{119});
    EXPECT_EQ(property<std::int32_t>(component_, 4), 0);
    select({5});
    call(component_, 18, std::int32_t{INT32_MAX}, std::int16_t{-1}, std::int32_t{0x7FFF0000});
    EXPECT_EQ(selected(), std::vector<std::int16_t>{});
    select({-3, 0, 119, 5, 32767});
    EXPECT_EQ(selected(), std::vector<std::int16_t>{5});
    call(component_, 18, std::int32_t{-4}, std::int16_t{0}, std::int32_t{2});
    EXPECT_EQ(selected(), std::vector<std::int16_t>{});

    put(component_, 2, std::int16_t{9});
    EXPECT_EQ(property<std::int16_t>(component_, 2), 1);
    setEntry(graphXWord, 1);
    EXPECT_EQ(entry(graphXWord), 0) << "symbols are no numbers";
    setEntry(graphYWord, -5);
    EXPECT_EQ(entry(graphYWord), 9);
    setEntry(categoryWord, 11);
    EXPECT_EQ(entry(categoryWord), 0);
    const GraphWindow whole = graph().graphChart().marks().content().window;
    for (const float end : {-1.0F, 0.0F, 1e30F, std::numeric_limits<float>::quiet_NaN()}) {
        setEntry(windowRightWord, std::bit_cast<std::int32_t>(end));
        EXPECT_EQ(graph().graphChart().marks().content().window, whole) << end;
    }
}

TEST_F(AnalyserTest, EntriesOfAnUnknownBlockAreNotTaken) {
    for (const std::vector<std::int32_t>& words : {std::vector<std::int32_t>{}, {9, 0, 1}, {2, 4711}}) {
        call(component_, 16, component_.keepBlock(std::as_bytes(std::span(words))));
        call(component_, 20, std::int16_t{0}, std::int32_t{100});
        EXPECT_EQ(ask<std::int32_t>(component_, 21, InvokeKind::method, std::int16_t{0}), 0);
    }
    // The block tells which entry is which, whatever the place.
    const std::vector<std::int32_t> third{2, 2};
    call(component_, 16, component_.keepBlock(std::as_bytes(std::span(third))));
    call(component_, 20, std::int16_t{0}, std::int32_t{100});
    EXPECT_EQ(entry(2), 100);
    EXPECT_EQ(table().columnWidth(2), 100);
}

}  // namespace
}  // namespace controls::dataanalyser
