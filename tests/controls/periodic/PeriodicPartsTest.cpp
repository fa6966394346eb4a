#include <QAbstractSlider>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QTest>
#include <vector>

#include "controls/periodic/PeriodicWidget.h"
#include "controls/periodic/ScaleBox.h"
#include "controls/periodic/ValueSlider.h"
#include "controls/periodic/ViewStrip.h"
#include "controls/periodic/model/ElementKinds.h"
#include "tests/controls/RecordingSite.h"

namespace controls::periodic {
namespace {

class PeriodicParts : public testing::Test {
  protected:
    PeriodicParts() {
        table_.resize(1016, 640);
        table_.show();
        table_.setFocus();
        QTest::qWait(0);
    }

    template <class Part>
    Part& part() {
        for (QObject* child : table_.children()) {
            if (auto* found = dynamic_cast<Part*>(child)) return *found;
        }
        throw std::logic_error("the table has no such part");
    }

    void chooseView(TableView view) {
        QTest::mouseClick(const_cast<QWidget*>(&part<ViewStrip>().button(view)), Qt::LeftButton);
    }

    std::vector<int> chosen_;
    PeriodicWidget table_{[this](int number) { chosen_.push_back(number); }, nullptr};
};

TEST_F(PeriodicParts, AnotherViewForgetsTheHighlightButKeepsTheElementAndTheSliders) {
    table_.setState(
        {.selected = 26, .view = TableView::matter, .highlighted = 2, .kelvin = 2000, .year = 1800});
    chooseView(TableView::density);
    EXPECT_EQ(table_.state(),
              (TableState{.selected = 26, .view = TableView::density, .kelvin = 2000, .year = 1800}));
    EXPECT_TRUE(table_.hasFocus()) << "a click in the strip leaves the keyboard to the table";
    chooseView(TableView::families);
    QTest::keyClick(&table_, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(table_.state().view, TableView::crust) << "round to the last";
    chooseView(TableView::groups);
    QTest::keyClick(&table_, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(table_.state().highlighted, kindWithoutGroup);
    for (int i = 0; i < 3; ++i) QTest::keyClick(&table_, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(table_.state().highlighted, 2) << "by way of none";
}

TEST_F(PeriodicParts, TheSliderIsThereWhereItIsNeededAndMoves) {
    auto& slider = part<ValueSlider>();
    EXPECT_FALSE(slider.isVisible());
    chooseView(TableView::matter);
    EXPECT_TRUE(slider.isVisible());
    EXPECT_EQ(slider.value(), 298);
    QTest::mouseClick(&slider, Qt::LeftButton, {},
                      QPoint(slider.positionOf(6000) + 50, slider.height() * 3 / 4));
    EXPECT_EQ(table_.state().kelvin, 6000);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(0, slider.height() * 3 / 4));
    EXPECT_EQ(table_.state().kelvin, 0);
    QTest::keyClick(&table_, Qt::Key_Plus);
    EXPECT_EQ(table_.state().kelvin, 10);
    QTest::mouseDClick(&slider, Qt::LeftButton, {}, QPoint(0, slider.height() * 3 / 4));
    EXPECT_EQ(table_.state().kelvin, 298);

    chooseView(TableView::discovery);
    EXPECT_EQ(slider.value(), 2010);
    QTest::keyClick(&table_, Qt::Key_Minus);
    EXPECT_EQ(table_.state().year, 2009);
    EXPECT_EQ(table_.state().kelvin, 298);
    chooseView(TableView::density);
    EXPECT_FALSE(slider.isVisible());
    QTest::keyClick(&table_, Qt::Key_Minus);
    EXPECT_EQ(table_.state().year, 2009);
}

TEST_F(PeriodicParts, TheBoxTellsWhetherTheScaleIsLogarithmic) {
    auto& box = part<ScaleBox>();
    EXPECT_FALSE(box.isVisible());
    chooseView(TableView::density);
    EXPECT_FALSE(box.isChecked());
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_TRUE(table_.state().otherScale);
    chooseView(TableView::crust);
    EXPECT_TRUE(box.isChecked());
    EXPECT_FALSE(table_.state().otherScale);
    chooseView(TableView::discovery);
    EXPECT_FALSE(box.isVisible());
}

TEST_F(PeriodicParts, ARestoredStateIsShownByTheParts) {
    table_.setState({.view = TableView::discovery, .year = 1800});
    EXPECT_EQ(part<ValueSlider>().value(), 1800);
    EXPECT_TRUE(static_cast<const ViewButton&>(part<ViewStrip>().button(TableView::discovery)).isChecked());
    table_.setState({.view = TableView::melting, .otherScale = true});
    EXPECT_TRUE(part<ScaleBox>().isChecked());
    EXPECT_EQ(table_.state().year, 2010);
}

TEST_F(PeriodicParts, LettersTypedInTheStripReachTheTable) {
    auto* button = const_cast<QWidget*>(&part<ViewStrip>().button(TableView::families));
    button->setFocus();
    QTest::keyClicks(button, QStringLiteral("au"));
    EXPECT_EQ(table_.state().selected, 79);
}

TEST_F(PeriodicParts, CellsAreAccessible) {
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&table_);
    ASSERT_NE(table, nullptr);
    QAccessibleInterface* iron = table->child(25);
    ASSERT_NE(iron, nullptr);
    EXPECT_EQ(iron->text(QAccessible::Name),
              QStringLiteral("Σίδηρος, Fe, ατομικός αριθμός 26, Στοιχεία μετάπτωσης"));
    EXPECT_EQ(table->indexOfChild(iron), 25);
    const QPoint middle = iron->rect().center();
    EXPECT_EQ(table->childAt(middle.x(), middle.y()), iron);
    EXPECT_FALSE(iron->state().selected);
    iron->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(chosen_, std::vector<int>{26});
    EXPECT_TRUE(iron->state().selected);
    EXPECT_EQ(table->focusChild(), iron);
    chooseView(TableView::boiling);
    EXPECT_EQ(iron->text(QAccessible::Name),
              QStringLiteral("Σίδηρος, Fe, ατομικός αριθμός 26, Σημείο βρασμού: 3134 K = 2861 °C"));
    EXPECT_EQ(table->child(elementCount)->childCount(), viewCount) << "the strip follows";
}

TEST(PeriodicCreation, NothingIsMadeBeforeTheTableIsShown) {
    PeriodicWidget table([](int) {}, nullptr);
    table.resize(1000, 600);
    table.setState({.selected = 8, .view = TableView::matter});
    EXPECT_TRUE(table.children().isEmpty());
    table.show();
    EXPECT_FALSE(table.children().isEmpty());
}

TEST_F(PeriodicParts, DrawingAgainWhatHasChangedGivesTheWholePicture) {
    // The window keeps the pixels that are not drawn anew, so a table that draws too little gives another
    // picture.
    QWidget& window = table_;
    for (const int number : {26, 57, 118}) {
        QTest::mouseMove(&window, table_.cellOf(number).center());
        QTest::keyClick(&table_, Qt::Key_Right);
        QTest::qWait(0);
        const QImage kept = window.screen()->grabWindow(window.winId()).toImage();
        if (kept.size() != window.size()) GTEST_SKIP() << "this platform cannot take the window's picture";
        const QImage whole = window.grab().toImage();
        EXPECT_EQ(kept.convertToFormat(QImage::Format_RGB32), whole.convertToFormat(QImage::Format_RGB32));
    }
}

}  // namespace
}  // namespace controls::periodic
