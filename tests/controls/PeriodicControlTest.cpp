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
using platform::Variant;

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
    EXPECT_EQ(property<std::string>(control_, 1), "1.0.40");
    EXPECT_TRUE(ask<bool>(control_, 2, InvokeKind::method, std::string("D:\\")));
    EXPECT_FALSE(ask<bool>(control_, 2, InvokeKind::method, std::string()));
    call(control_, 3);
    EXPECT_EQ(stateA(), 0);
    EXPECT_EQ(stateB(), 0);
}

TEST_F(PeriodicControlTest, RefusesWrongKindsTypesAndNumbersOfArguments) {
    EXPECT_FALSE(invoke(control_, 1, InvokeKind::method));
    EXPECT_FALSE(invoke(control_, 2, InvokeKind::method, std::int32_t{1}));
    EXPECT_FALSE(invoke(control_, 6, InvokeKind::method, std::int32_t{1}));
    EXPECT_FALSE(invoke(control_, 6, InvokeKind::method, std::int32_t{1}, std::int16_t{0}));
    EXPECT_FALSE(invoke(control_, 7, InvokeKind::method));
    EXPECT_EQ(stateA(), 0);
}

TEST_F(PeriodicControlTest, StateComesBackAndNonsenseFallsBack) {
    struct Case {
        std::int32_t a, b, expectedA, expectedB;
    };
    for (const auto& [a, b, expectedA, expectedB] : std::vector<Case>{{26, 3, 26, 3},
                                                                      {118, 10, 118, 10},
                                                                      {0, 0, 0, 0},
                                                                      {119, 11, 0, 0},
                                                                      {-1, -1, 0, 0},
                                                                      {26 | 1 << 8, 2, 0, 2},
                                                                      {26 | 1 << 16, 0, 0, 0},
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
    const QPoint halogens = layout.legendItem(Family::halogen).center();
    QTest::mouseClick(&table(), Qt::LeftButton, {}, halogens);
    EXPECT_EQ(stateB(), familyCode(Family::halogen));
    QTest::mouseClick(&table(), Qt::LeftButton, {}, halogens);
    EXPECT_EQ(stateB(), 0);
    EXPECT_TRUE(site_.events.empty());
}

TEST(PeriodicLayout, EverythingLiesApartAndInsideAtAnySize) {
    for (const QSize size :
         {QSize(636, 354), QSize(700, 900), QSize(1016, 640), QSize(1904, 950), QSize(1900, 400)}) {
        SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height());
        const TableLayout layout(size);
        std::vector<QRect> areas{layout.card()};
        for (const Element& element : elements()) areas.push_back(layout.cell(placeOf(element.number)));
        for (int code = 1; code <= familyCount; ++code)
            areas.push_back(layout.legendItem(*familyOfCode(code)));
        for (int group = 1; group <= columnCount; ++group) areas.push_back(layout.groupLabel(group));
        for (std::size_t i = 0; i < areas.size(); ++i) {
            EXPECT_TRUE(QRect(QPoint(), size).contains(areas[i])) << i;
            for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(areas[i].intersects(areas[k])) << i << ' ' << k;
        }
        EXPECT_EQ(layout.elementAt(layout.cell(placeOf(92)).bottomRight()), 92);
    }
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
