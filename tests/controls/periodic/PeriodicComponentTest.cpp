#include "controls/periodic/PeriodicComponent.h"

#include <QTest>

#include "controls/periodic/TableLayout.h"
#include "controls/periodic/model/ElementGrid.h"
#include "tests/controls/RecordingSite.h"

namespace controls::periodic {
namespace {

using platform::InvokeKind;

class PeriodicComponentTest : public testing::Test {
  protected:
    PeriodicComponentTest() { table().resize(1016, 640); }

    QWidget& table() { return component_.widget(); }
    std::int32_t stateA() { return ask<std::int32_t>(component_, 4, InvokeKind::method); }
    std::int32_t stateB() { return ask<std::int32_t>(component_, 5, InvokeKind::method); }
    int selected() { return stateA() & 0xFF; }
    QPoint middleOf(int number) { return TableLayout(table().size()).cell(placeOf(number)).center(); }
    void press(Qt::Key key) { QTest::keyClick(&table(), key); }

    RecordingSite site_;
    PeriodicComponent component_{site_, nullptr};
};

TEST_F(PeriodicComponentTest, StateComesBackAndNonsenseFallsBack) {
    struct Case {
        std::int32_t a, b, expectedA, expectedB;
    };
    constexpr std::int32_t hot = 1501 << 4;
    constexpr std::int32_t year1800 = 1800 << 17;
    const Case cases[] = {{118, 10, 118, 10},
                          {26 | 2 << 8, hot | year1800, 26 | 2 << 8, hot | year1800},
                          {119, 11, 0, 0},
                          {26 | 1 << 8, 4, 26 | 1 << 8, 0},
                          {26 | 4 << 8, 1, 26 | 4 << 8, 0},
                          {26 | 15 << 8, 2, 26, 2},
                          {26 | 12 << 8, 2 | 1 << 28, 26 | 12 << 8, 2 | 1 << 28},
                          {26, 2 | 1 << 28, 26, 0},
                          {26 | 1 << 16, 0, 26, 0},
                          {26 | 9 << 8 | 1 << 16, 0, 26 | 9 << 8, 0},
                          {26 | 1 << 17, 6002 << 4, 0, 0},
                          {0, 299 << 4, 0, 0},
                          {0, 1649 << 17, 0, 0},
                          {0, 2011 << 17, 0, 0},
                          {-1, -1, 0, 0},
                          {INT32_MIN, INT32_MAX, 0, 0}};
    for (const auto& [a, b, expectedA, expectedB] : cases) {
        call(component_, 6, a, b);
        EXPECT_EQ(stateA(), expectedA) << a;
        EXPECT_EQ(stateB(), expectedB) << b;
    }
    EXPECT_TRUE(site_.events.empty()) << "a restored state is no choice of the reader";
}

TEST_F(PeriodicComponentTest, PressesThatAreNoClickRaiseNothing) {
    EXPECT_FALSE(ask<bool>(component_, 2, InvokeKind::method, std::string())) << "no data folder";
    press(Qt::Key_Return);
    QTest::mouseClick(&table(), Qt::RightButton, {}, middleOf(26));
    QTest::mousePress(&table(), Qt::LeftButton, {}, middleOf(26));
    QTest::mouseRelease(&table(), Qt::LeftButton, {}, middleOf(27));
    QTest::mouseClick(&table(), Qt::LeftButton, {}, TableLayout(table().size()).card().center());
    EXPECT_TRUE(site_.events.empty());
}

TEST_F(PeriodicComponentTest, ArrowKeysWalkThroughTheTable) {
    struct Case {
        int from;
        Qt::Key key;
        int to;
    };
    const Case cases[] = {{0, Qt::Key_Down, 1},   {1, Qt::Key_Left, 1},      {1, Qt::Key_Right, 2},
                          {1, Qt::Key_Down, 3},   {1, Qt::Key_Up, 1},        {56, Qt::Key_Right, 57},
                          {39, Qt::Key_Down, 57}, {57, Qt::Key_Up, 39},      {104, Qt::Key_Down, 58},
                          {89, Qt::Key_Down, 89}, {118, Qt::Key_Right, 118}, {118, Qt::Key_Up, 86},
                          {26, Qt::Key_Home, 1},  {26, Qt::Key_End, 118}};
    for (const auto& [from, key, to] : cases) {
        call(component_, 6, std::int32_t{from}, std::int32_t{0});
        press(key);
        EXPECT_EQ(selected(), to) << from << " key " << key;
    }
    EXPECT_TRUE(site_.events.empty());
}

TEST_F(PeriodicComponentTest, AClickInTheLegendHighlightsAFamilyUntilTheNext) {
    const TableLayout layout(table().size());
    const int kind = familyCode(Family::halogen);
    const QPoint halogens = layout.kindItem(TableView::families, kind).center();
    QTest::mouseClick(&table(), Qt::LeftButton, {}, halogens);
    EXPECT_EQ(stateB(), kind);
    QTest::mouseClick(&table(), Qt::LeftButton, {}, halogens);
    EXPECT_EQ(stateB(), 0);
    EXPECT_TRUE(site_.events.empty());
}

TEST_F(PeriodicComponentTest, EmptyAndTinyWindowsAreDrawnWithoutHarm) {
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(40, 400), QSize(400, 30)}) {
        table().resize(size);
        table().grab();
        QTest::mouseClick(&table(), Qt::LeftButton, {}, QPoint(0, 0));
    }
}

}  // namespace
}  // namespace controls::periodic
