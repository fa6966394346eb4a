#include "controls/dataanalyser/AnalyserControl.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QTest>
#include <cstring>
#include <vector>

#include "tests/controls/RecordingSite.h"

namespace controls::dataanalyser {
namespace {

using platform::InvokeKind;

class AnalyserControlTest : public testing::Test {
  protected:
    AnalyserControlTest() {
        control_.widget().resize(1016, 640);
        control_.widget().show();
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    }

    ElementView& table() { return *control_.widget().findChild<ElementView*>(); }
    std::string cell(int row, int column) {
        return table().model()->index(row, column).data().toString().toStdString();
    }
    void clickHeading(int column) {
        QHeaderView* header = table().horizontalHeader();
        const QPoint middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                            header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, middle);
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers,
                          table().visualRect(table().model()->index(row, 2)).center());
    }
    static QString copiedText() { return QGuiApplication::clipboard()->text(); }

    AnalyserControl control_{nullptr};
};

/// A captured state, as a host keeps it with copies of the blocks' contents.
struct State {
    std::int16_t mode, viewMode, option3, option7, value9;
    bool flag5, flag6;
    std::int32_t option4, value8;
    std::vector<std::byte> columns, selection;
    std::vector<std::int32_t> entries;
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

TEST_F(AnalyserControlTest, OperationsHaveTheirKindsAndTypes) {
    EXPECT_EQ(property<std::string>(control_, 1), "1.0.40");
    call(control_, 10, std::int32_t{1103}, std::string("D:\\"));
    EXPECT_EQ(ask<std::int16_t>(control_, 22, InvokeKind::method), 0);
    call(control_, 23);
    EXPECT_FALSE(invoke(control_, 2, InvokeKind::propertyPut, std::int32_t{0}));
    EXPECT_FALSE(invoke(control_, 5, InvokeKind::propertyPut, std::int16_t{1}));
    EXPECT_FALSE(invoke(control_, 8, InvokeKind::propertyPut, std::int32_t{1}));
    EXPECT_FALSE(invoke(control_, 10, InvokeKind::method, std::int16_t{1}, std::string()));
    EXPECT_FALSE(invoke(control_, 19, InvokeKind::method));
    EXPECT_FALSE(invoke(control_, 20, InvokeKind::method, std::int32_t{0}, std::int32_t{0}));
}

TEST_F(AnalyserControlTest, OnlyTheTableCanBeShown) {
    put(control_, 2, std::int16_t{1});
    put(control_, 7, std::int16_t{4});
    EXPECT_EQ(property<std::int16_t>(control_, 2), 0);
    EXPECT_EQ(property<std::int16_t>(control_, 7), 0);
}

TEST_F(AnalyserControlTest, StateComesBack) {
    put(control_, 6, true);
    put(control_, 3, std::int16_t{8});
    put(control_, 5, true);
    call(control_, 15, std::int16_t{familyCode(Family::transition)});
    table().select({26, 29, 79, 1});
    call(control_, 20, std::int16_t{2}, std::int32_t{222});
    table().scrollTopTo(73);
    put(control_, 4, std::int32_t{29});
    const State saved = capture(control_);
    EXPECT_EQ(saved.value8, 3) << "hydrogen is not listed";
    EXPECT_EQ(saved.entries.size(), 11U);
    EXPECT_EQ(saved.value9, 73);

    put(control_, 3, std::int16_t{0});
    put(control_, 5, false);
    put(control_, 6, false);
    call(control_, 15, std::int16_t{0});
    table().select({2});
    call(control_, 20, std::int16_t{2}, std::int32_t{0});
    put(control_, 4, std::int32_t{0});
    table().scrollTopTo(1);

    restore(control_, saved);
    EXPECT_EQ(table().selected(), (std::vector<int>{79, 29, 26}));
    const State again = capture(control_);
    EXPECT_EQ(std::tie(again.mode, again.option3, again.flag5, again.flag6, again.option4, again.value8,
                       again.value9, again.entries),
              std::tie(saved.mode, saved.option3, saved.flag5, saved.flag6, saved.option4, saved.value8,
                       saved.value9, saved.entries));
}

TEST_F(AnalyserControlTest, NonsenseFallsBack) {
    put(control_, 3, std::int16_t{-7});
    EXPECT_EQ(property<std::int16_t>(control_, 3), 0);
    put(control_, 3, std::int16_t{11});
    EXPECT_EQ(property<std::int16_t>(control_, 3), 0);
    call(control_, 15, std::int16_t{99});
    EXPECT_EQ(ask<std::int16_t>(control_, 13, InvokeKind::method), 0);
    put(control_, 4, std::int32_t{119});
    EXPECT_EQ(property<std::int32_t>(control_, 4), 0);
    table().select({5});
    call(control_, 18, std::int32_t{INT32_MAX}, std::int16_t{-1}, std::int32_t{0x7FFF0000});
    EXPECT_EQ(property<std::int32_t>(control_, 8), 0);
    call(control_, 18, std::int32_t{-4}, std::int16_t{0},
         ask<std::int32_t>(control_, 17, InvokeKind::method));
    EXPECT_EQ(property<std::int32_t>(control_, 8), 0);
    for (const int index : {-1, 11, 32767}) {
        call(control_, 20, static_cast<std::int16_t>(index), std::int32_t{100});
        EXPECT_EQ(ask<std::int32_t>(control_, 21, InvokeKind::method, static_cast<std::int16_t>(index)), 0);
    }
}

TEST_F(AnalyserControlTest, WidthsOfOtherColumnsAreNotTaken) {
    call(control_, 16, std::int32_t{0});
    call(control_, 20, std::int16_t{0}, std::int32_t{100});
    EXPECT_EQ(ask<std::int32_t>(control_, 21, InvokeKind::method, std::int16_t{0}), 0);
    call(control_, 16, ask<std::int32_t>(control_, 14, InvokeKind::method));
    call(control_, 20, std::int16_t{0}, std::int32_t{100});
    EXPECT_EQ(ask<std::int32_t>(control_, 21, InvokeKind::method, std::int16_t{0}), 100);
    EXPECT_EQ(table().columnWidth(0), 100);
}

TEST_F(AnalyserControlTest, ClickOnAHeadingSortsAndASecondTurnsTheOrder) {
    clickRow(0);
    clickHeading(8);
    EXPECT_EQ(property<std::int16_t>(control_, 3), 8);
    EXPECT_EQ(cell(0, 1), "H");
    clickHeading(8);
    EXPECT_TRUE(property<bool>(control_, 5));
    EXPECT_EQ(cell(0, 1), "Os");
    EXPECT_EQ(cell(117, 8), "–");
    EXPECT_EQ(table().selected(), std::vector<int>{1}) << "the selection stays with its element";
    clickHeading(0);
    EXPECT_FALSE(property<bool>(control_, 5));
}

TEST_F(AnalyserControlTest, FamilyIsChosenInTheStrip) {
    auto* families = control_.widget().findChild<QComboBox*>();
    QTest::keyClick(families, Qt::Key_Down);
    EXPECT_EQ(ask<std::int16_t>(control_, 13, InvokeKind::method), 1);
    EXPECT_EQ(table().model()->rowCount(), 6);
    call(control_, 15, std::int16_t{0});
    EXPECT_EQ(families->currentIndex(), 0);
    EXPECT_EQ(table().model()->rowCount(), 118);
}

TEST_F(AnalyserControlTest, TypingMovesTheCursor) {
    QTest::keyClicks(&table(), QStringLiteral("au"));
    EXPECT_EQ(property<std::int32_t>(control_, 4), 79);
    EXPECT_EQ(table().selected(), std::vector<int>{79});
}

TEST_F(AnalyserControlTest, CopySelectionPutsTextAndATableOnTheClipboard) {
    call(control_, 12);
    EXPECT_EQ(copiedText(), QStringLiteral("before")) << "nothing is selected";
    clickRow(25);
    clickRow(0, Qt::ControlModifier);
    call(control_, 12);
    const QStringList lines = copiedText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("1\tH\tΥδρογόνο\t1,008\t")));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("26\tFe\tΣίδηρος\t55,845\t8\t4\t1811\t")));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains(
        QStringLiteral("<td align=\"right\">55,845</td>")));
}

TEST_F(AnalyserControlTest, CopyKeyCopiesTheSelectedRows) {
    clickRow(2);
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(copiedText().contains(QStringLiteral("\n3\tLi\t")));
}

TEST_F(AnalyserControlTest, CopyAllDataFollowsOrderAndUnit) {
    put(control_, 3, std::int16_t{6});
    put(control_, 6, true);
    call(control_, 11);
    const QStringList lines = copiedText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 120);
    EXPECT_TRUE(lines[0].contains(QStringLiteral("Σημείο τήξης (°C)")));
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("2\tHe\t")));
    EXPECT_TRUE(lines[1].contains(QStringLiteral("\t-272,20\t")));
    EXPECT_TRUE(lines[118].startsWith(QStringLiteral("118\tOg\t")));
}

}  // namespace
}  // namespace controls::dataanalyser
