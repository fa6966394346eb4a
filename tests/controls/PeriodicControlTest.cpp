#include "controls/periodic/PeriodicControl.h"

#include <QTest>
#include <algorithm>
#include <vector>

#include "controls/periodic/ElementGrid.h"
#include "controls/periodic/TableLayout.h"
#include "tests/controls/RecordingSite.h"

namespace controls::periodic {
namespace {

using platform::InvokeKind;

class PeriodicControlTest : public testing::Test {
  protected:
    PeriodicControlTest() { table().resize(1016, 640); }

    QWidget& table() { return control_.widget(); }
    std::int32_t stateA() { return ask<std::int32_t>(control_, 4, InvokeKind::method); }
    std::int32_t stateB() { return ask<std::int32_t>(control_, 5, InvokeKind::method); }
    int selected() { return stateA() & 0xFF; }
    QPoint middleOf(int number) { return TableLayout(table().size()).cell(placeOf(number)).center(); }
    void press(Qt::Key key) { QTest::keyClick(&table(), key); }
    void write(const QString& word) { QTest::keyClicks(&table(), word); }

    /// The keys of the elements that the host was told of.
    std::vector<int> chosen() const {
        std::vector<int> keys;
        for (const auto& event : site_.events) {
            EXPECT_EQ(event.dispid, 1);
            EXPECT_EQ(event.arguments.size(), 1U);
            const auto* key = event.arguments.front().get<std::int16_t>();
            keys.push_back(key ? *key : -1);
        }
        return keys;
    }

    RecordingSite site_;
    PeriodicControl control_{site_, nullptr};
};

TEST_F(PeriodicControlTest, OperationsById) {
    EXPECT_TRUE(ask<bool>(control_, 2, InvokeKind::method, std::string("D:\\")));
    EXPECT_FALSE(ask<bool>(control_, 2, InvokeKind::method, std::string()));
    call(control_, 3);
    EXPECT_EQ(stateA(), 0);
    EXPECT_EQ(stateB(), 0);
}

TEST_F(PeriodicControlTest, StateComesBackAndNonsenseFallsBack) {
    struct Case {
        std::int32_t a, b, expectedA, expectedB;
    };
    constexpr std::int32_t hot = 1501 << 4;
    constexpr std::int32_t year1800 = 1800 << 17;
    for (const auto& [a, b, expectedA, expectedB] :
         std::vector<Case>{{26, 3, 26, 3},
                           {118, 10, 118, 10},
                           {0, 0, 0, 0},
                           {26 | 2 << 8, hot | year1800, 26 | 2 << 8, hot | year1800},
                           {10 << 8 | 1 << 16, hot, 10 << 8 | 1 << 16, hot},
                           {119, 11, 0, 0},
                           {26 | 1 << 8, 3, 26 | 1 << 8, 3},
                           {26 | 1 << 8, 4, 26 | 1 << 8, 0},
                           {26 | 4 << 8, 1, 26 | 4 << 8, 0},
                           {26 | 11 << 8, 2, 26, 2},
                           {26 | 1 << 16, 0, 26, 0},
                           {26 | 9 << 8 | 1 << 16, 0, 26 | 9 << 8, 0},
                           {26 | 1 << 17, 6002 << 4, 0, 0},
                           {0, 299 << 4, 0, 0},
                           {0, 1649 << 17, 0, 0},
                           {0, 2011 << 17, 0, 0},
                           {-1, -1, 0, 0},
                           {INT32_MIN, INT32_MAX, 0, 0}}) {
        call(control_, 6, a, b);
        EXPECT_EQ(stateA(), expectedA) << a;
        EXPECT_EQ(stateB(), expectedB) << b;
    }
    EXPECT_TRUE(site_.events.empty()) << "a restored state is no choice of the reader";
}

TEST_F(PeriodicControlTest, ClickRaisesTheEventOfTheElementUnderThePointer) {
    for (const int number : {1, 26, 57, 103, 118}) {
        QTest::mouseClick(&table(), Qt::LeftButton, {}, middleOf(number));
        EXPECT_EQ(selected(), number);
    }
    EXPECT_EQ(chosen(), (std::vector<int>{1, 26, 57, 103, 118}));
}

TEST_F(PeriodicControlTest, PressesThatAreNoClickRaiseNothing) {
    QTest::mouseClick(&table(), Qt::RightButton, {}, middleOf(26));
    QTest::mousePress(&table(), Qt::LeftButton, {}, middleOf(26));
    QTest::mouseRelease(&table(), Qt::LeftButton, {}, middleOf(27));
    QTest::mouseClick(&table(), Qt::LeftButton, {}, TableLayout(table().size()).card().center());
    EXPECT_TRUE(site_.events.empty());
}

TEST_F(PeriodicControlTest, EnterRaisesTheEventOnceAnElementIsSelected) {
    press(Qt::Key_Return);
    EXPECT_TRUE(site_.events.empty());
    call(control_, 6, std::int32_t{8}, std::int32_t{0});
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    EXPECT_EQ(chosen(), (std::vector<int>{8, 8}));
}

TEST_F(PeriodicControlTest, ArrowKeysWalkThroughTheTable) {
    struct Case {
        int from;
        Qt::Key key;
        int to;
    };
    for (const auto& [from, key, to] : std::vector<Case>{{0, Qt::Key_Down, 1},
                                                         {1, Qt::Key_Left, 1},
                                                         {1, Qt::Key_Right, 2},
                                                         {1, Qt::Key_Down, 3},
                                                         {1, Qt::Key_Up, 1},
                                                         {56, Qt::Key_Right, 57},
                                                         {39, Qt::Key_Down, 57},
                                                         {57, Qt::Key_Up, 39},
                                                         {104, Qt::Key_Down, 58},
                                                         {89, Qt::Key_Down, 89},
                                                         {118, Qt::Key_Right, 118},
                                                         {118, Qt::Key_Up, 86},
                                                         {26, Qt::Key_Home, 1},
                                                         {26, Qt::Key_End, 118}}) {
        call(control_, 6, std::int32_t{from}, std::int32_t{0});
        press(key);
        EXPECT_EQ(selected(), to) << from << " key " << key;
    }
    EXPECT_TRUE(site_.events.empty());
}

TEST_F(PeriodicControlTest, TypingASymbolOrNameJumps) {
    write(QStringLiteral("Fe"));
    EXPECT_EQ(selected(), 26);
    press(Qt::Key_Return);
    EXPECT_EQ(chosen(), std::vector<int>{26});
    EXPECT_FALSE(table().accessibleDescription().isEmpty());
    EXPECT_TRUE(table().accessibleDescription().contains(QStringLiteral("Σίδηρος")));
}

TEST_F(PeriodicControlTest, TypingInGreekJumps) {
    QKeyEvent sigma(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("σ"));
    QKeyEvent iota(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("ί"));
    QCoreApplication::sendEvent(&table(), &sigma);
    QCoreApplication::sendEvent(&table(), &iota);
    EXPECT_EQ(selected(), 26);
}

TEST_F(PeriodicControlTest, AClickInTheLegendHighlightsAFamilyUntilTheNext) {
    const TableLayout layout(table().size());
    const int kind = familyCode(Family::halogen);
    const QPoint halogens = layout.kindItem(TableView::families, kind).center();
    QTest::mouseClick(&table(), Qt::LeftButton, {}, halogens);
    EXPECT_EQ(stateB(), kind);
    QTest::mouseClick(&table(), Qt::LeftButton, {}, halogens);
    EXPECT_EQ(stateB(), 0);
    EXPECT_TRUE(site_.events.empty());
}

TEST_F(PeriodicControlTest, EmptyAndTinyWindowsAreDrawnWithoutHarm) {
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(40, 400), QSize(400, 30)}) {
        table().resize(size);
        table().grab();
        QTest::mouseClick(&table(), Qt::LeftButton, {}, QPoint(0, 0));
    }
}

}  // namespace
}  // namespace controls::periodic
