#include <bit>
#include <limits>

#include "controls/dataanalyser/EntryWords.h"
#include "controls/dataanalyser/GraphChart.h"
#include "controls/dataanalyser/GraphMarks.h"
#include "tests/controls/AnalyserTest.h"

namespace controls::dataanalyser {
namespace {

using platform::InvokeKind;

/// A captured state, as a host keeps it with copies of the blocks' contents.
struct State {
    std::int16_t mode, viewMode, option3, option7, value9;
    bool flag5, flag6;
    std::int32_t option4, value8;
    std::vector<std::byte> columns, selection;
    std::vector<std::int32_t> entries;

    bool operator==(const State&) const = default;
};

/// The count that the block of entries begins with.
std::int32_t countAt(const AnalyserControl& control, std::int32_t location) {
    std::int32_t count = 0;
    const auto bytes = control.block(location);
    EXPECT_GE(bytes.size(), sizeof count);
    EXPECT_EQ(bytes.size() % sizeof count, 0U);
    if (bytes.size() >= sizeof count) std::memcpy(&count, bytes.data(), sizeof count);
    EXPECT_EQ(bytes.size() / sizeof count, static_cast<std::size_t>(count));
    return count;
}

std::vector<std::byte> bytesAt(const AnalyserControl& control, std::int32_t location) {
    const auto bytes = control.block(location);
    return {bytes.begin(), bytes.end()};
}

State capture(AnalyserControl& control) {
    State state{};
    state.mode = ask<std::int16_t>(control, 13, InvokeKind::method);
    const auto columns = ask<std::int32_t>(control, 14, InvokeKind::method);
    state.columns = bytesAt(control, columns);
    for (std::int32_t i = 0; i < countAt(control, columns) - 1; ++i) {
        state.entries.push_back(
            ask<std::int32_t>(control, 21, InvokeKind::method, static_cast<std::int16_t>(i)));
    }
    state.viewMode = property<std::int16_t>(control, 2);
    state.option4 = property<std::int32_t>(control, 4);
    state.option3 = property<std::int16_t>(control, 3);
    state.flag5 = property<bool>(control, 5);
    state.flag6 = property<bool>(control, 6);
    state.option7 = property<std::int16_t>(control, 7);
    state.value8 = property<std::int32_t>(control, 8);
    state.value9 = property<std::int16_t>(control, 9);
    state.selection = bytesAt(control, ask<std::int32_t>(control, 17, InvokeKind::method));
    return state;
}

void restore(AnalyserControl& control, const State& state) {
    put(control, 2, state.viewMode);
    put(control, 6, state.flag6);
    put(control, 3, state.option3);
    put(control, 5, state.flag5);
    call(control, 15, state.mode);
    put(control, 7, state.option7);
    call(control, 18, state.value8, state.value9, control.keepBlock(state.selection));
    call(control, 16, control.keepBlock(state.columns));
    for (std::size_t i = 0; i < state.entries.size(); ++i) {
        call(control, 20, static_cast<std::int16_t>(i), state.entries[i]);
    }
    put(control, 4, state.option4);
}

TEST(AnalyserCreation, ReadsAndShowsNothingBeforeItIsShown) {
    RecordingSite site;  // asking it for files ends the test
    AnalyserControl control(site, nullptr, linkedGraphParts);
    call(control, 10, std::int32_t{1103}, std::string("D:\\"));
    EXPECT_EQ(property<std::int16_t>(control, 2), 0);
    EXPECT_TRUE(control.widget().children().isEmpty());
}

TEST_F(AnalyserTest, StateComesBack) {
    const State nothing = capture(control_);
    put(control_, 6, false);
    put(control_, 3, std::int16_t{3});
    put(control_, 5, true);
    call(control_, 15, gases);
    put(control_, 7, std::int16_t{1});
    put(control_, 2, std::int16_t{1});
    select({1, 4}, 4);
    setEntry(0, 222);
    setEntry(2, 0x10000);
    setEntry(categoryWord, 1);
    setEntry(graphXWord, 4);
    setEntry(graphYWord, 3);
    setEntry(graphOptionsWord, 6);
    setEntry(windowLeftWord, std::bit_cast<std::int32_t>(1.5F));
    setEntry(windowRightWord, std::bit_cast<std::int32_t>(60.0F));
    setEntry(windowBottomWord, std::bit_cast<std::int32_t>(1.0F));
    setEntry(windowTopWord, std::bit_cast<std::int32_t>(10.0F));
    put(control_, 4, std::int32_t{4});
    const State saved = capture(control_);
    EXPECT_EQ(saved.mode, gases);
    EXPECT_EQ(saved.value8, 4);
    EXPECT_EQ(saved.value9, 4);
    EXPECT_EQ(saved.entries.size(), 13U);

    call(control_, 15, std::int16_t{0});
    restore(control_, nothing);
    EXPECT_FALSE(capture(control_) == saved);
    restore(control_, saved);
    EXPECT_TRUE(capture(control_) == saved);
    EXPECT_EQ(graph().graphChart().marks().scenery().window.x, (AxisRange{1.5, 60, false}));
}

TEST_F(AnalyserTest, NonsenseFallsBack) {
    for (const int code : {-7, 15, 32767}) {
        put(control_, 3, static_cast<std::int16_t>(code));
        EXPECT_EQ(property<std::int16_t>(control_, 3), -1);
        put(control_, 7, static_cast<std::int16_t>(code));
        EXPECT_EQ(property<std::int16_t>(control_, 7), 0);
        call(control_, 15, static_cast<std::int16_t>(code));
        EXPECT_EQ(ask<std::int16_t>(control_, 13, InvokeKind::method), 0);
        call(control_, 20, static_cast<std::int16_t>(code < 0 ? code : 900), std::int32_t{100});
        EXPECT_EQ(ask<std::int32_t>(control_, 21, InvokeKind::method,
                                    static_cast<std::int16_t>(code < 0 ? code : 900)),
                  0);
    }
    put(control_, 4, std::int32_t{119});
    EXPECT_EQ(property<std::int32_t>(control_, 4), 0);
    select({5});
    call(control_, 18, std::int32_t{INT32_MAX}, std::int16_t{-1}, std::int32_t{0x7FFF0000});
    EXPECT_EQ(selected(), std::vector<std::int16_t>{});
    select({-3, 0, 119, 5, 32767});
    EXPECT_EQ(selected(), std::vector<std::int16_t>{5});
    call(control_, 18, std::int32_t{-4}, std::int16_t{0}, std::int32_t{2});
    EXPECT_EQ(selected(), std::vector<std::int16_t>{});

    put(control_, 2, std::int16_t{9});
    EXPECT_EQ(property<std::int16_t>(control_, 2), 1);
    setEntry(graphXWord, 1);
    EXPECT_EQ(entry(graphXWord), 0) << "symbols are no numbers";
    setEntry(graphYWord, -5);
    EXPECT_EQ(entry(graphYWord), 9);
    setEntry(categoryWord, 11);
    EXPECT_EQ(entry(categoryWord), 0);
    const GraphWindow whole = graph().graphChart().marks().scenery().window;
    for (const float end : {-1.0F, 0.0F, 1e30F, std::numeric_limits<float>::quiet_NaN()}) {
        setEntry(windowRightWord, std::bit_cast<std::int32_t>(end));
        EXPECT_EQ(graph().graphChart().marks().scenery().window, whole) << end;
    }
}

TEST_F(AnalyserTest, EntriesOfAnUnknownBlockAreNotTaken) {
    for (const std::vector<std::int32_t>& words : {std::vector<std::int32_t>{}, {9, 0, 1}, {2, 4711}}) {
        call(control_, 16, control_.keepBlock(std::as_bytes(std::span(words))));
        call(control_, 20, std::int16_t{0}, std::int32_t{100});
        EXPECT_EQ(ask<std::int32_t>(control_, 21, InvokeKind::method, std::int16_t{0}), 0);
    }
    // The block tells which entry is which, whatever the place.
    const std::vector<std::int32_t> third{2, 2};
    call(control_, 16, control_.keepBlock(std::as_bytes(std::span(third))));
    call(control_, 20, std::int16_t{0}, std::int32_t{100});
    EXPECT_EQ(entry(2), 100);
    EXPECT_EQ(table().columnWidth(2), 100);
}

}  // namespace
}  // namespace controls::dataanalyser
