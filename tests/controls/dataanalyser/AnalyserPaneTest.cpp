#include <QComboBox>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/ColumnMenu.h"
#include "controls/dataanalyser/graph/GraphChart.h"
#include "controls/dataanalyser/graph/GraphMarks.h"
#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/model/AnalyserState.h"
#include "controls/dataanalyser/table/TableHeader.h"
#include "tests/controls/dataanalyser/AnalyserTest.h"

namespace controls::dataanalyser {
namespace {

using platform::InvokeKind;

bool isBlank(const QImage& picture) {
    QImage white(picture.size(), QImage::Format_RGB32);
    white.fill(Qt::white);
    return picture.convertToFormat(QImage::Format_RGB32) == white;
}

TEST_F(AnalyserTest, FaultyRowsAreNamedInTheMessageLine) {
    call(component_, 15, gases);
    ASSERT_EQ(table().model()->rowCount(), 4);
    EXPECT_EQ(cell(1, 1), "CH₄");
    EXPECT_EQ(cell(3, 3), "–");
    const QString told =
        component_.widget().findChild<QWidget*>(QStringLiteral("message"))->accessibleDescription();
    EXPECT_TRUE(told.contains(QStringLiteral("gases.dat, γραμμή 13 («λάθος»)"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("γραμμή 16 («κομμένο»): το αρχείο τελειώνει απότομα")));
    EXPECT_TRUE(told.contains(QStringLiteral("Πηγή: δοκιμή")));
}

TEST_F(AnalyserTest, ClickOnAHeadingSortsAndASecondTurnsTheOrder) {
    clickRow(0);
    clickHeading(8);
    EXPECT_EQ(property<std::int16_t>(component_, 3), 8);
    EXPECT_EQ(cell(0, 1), "H");
    clickHeading(8);
    EXPECT_TRUE(property<bool>(component_, 5));
    EXPECT_EQ(cell(0, 1), "Os");
    EXPECT_EQ(cell(117, 8), "–");
    EXPECT_EQ(selected(), std::vector<std::int16_t>{1}) << "the selection stays with its element";
    clickHeading(0);
    EXPECT_FALSE(property<bool>(component_, 5));
}

TEST_F(AnalyserTest, KeysSortByTheColumnUnderTheCursor) {
    table().setCurrentIndex(table().model()->index(0, 2));
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(property<std::int16_t>(component_, 3), 2);
    EXPECT_EQ(cell(0, 2), "Ψευδάργυρος");
    QTest::keyClick(&table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(cell(0, 2), "Άζωτο");
}

TEST_F(AnalyserTest, DataSetAndCategoryAreChosenInTheStrip) {
    const auto boxes = component_.widget().findChildren<QComboBox*>();
    QTest::keyClick(boxes[1], Qt::Key_Down);
    EXPECT_EQ(entry(categoryWord), 1);
    EXPECT_EQ(table().model()->rowCount(), 7) << "non-metals";
    QTest::keyClick(boxes[0], Qt::Key_Down);
    EXPECT_EQ(ask<std::int16_t>(component_, 13, InvokeKind::method), gases);
    EXPECT_EQ(table().model()->rowCount(), 4);
    EXPECT_EQ(boxes[1]->currentIndex(), 0);
}

TEST_F(AnalyserTest, RowsFromOneToAnotherAreListedAndSummedUp) {
    setEntry(firstRowWord, 3);
    setEntry(lastRowWord, 10);
    EXPECT_EQ(table().model()->rowCount(), 8);
    EXPECT_EQ(cell(0, 1), "Li");
    clickHeading(4);
    table();
    const QString told =
        component_.widget().findChild<QWidget*>(QStringLiteral("message"))->accessibleDescription();
    EXPECT_TRUE(told.startsWith(QStringLiteral("Ομάδα: από 1 (Li) ως 18 (Ne), μέση τιμή 12")))
        << told.toStdString();
    setEntry(firstRowWord, 900);
    EXPECT_EQ(table().model()->rowCount(), 10) << "an element that does not exist is no bound";
}

TEST_F(AnalyserTest, TheElementsColumnsCutNoValueAndKeepTheirHeadingsReadable) {
    component_.widget().resize(1362, 640);
    const TableView& shown = table();
    for (int column = 0; column < shown.model()->columnCount(); ++column) {
        int widest = 0;
        for (int row = 0; row < shown.model()->rowCount(); ++row) {
            widest = std::max(widest, QFontMetrics(appearance::font(tableFontPixels))
                                          .horizontalAdvance(QString::fromStdString(cell(row, column))));
        }
        EXPECT_LT(widest, shown.columnWidth(column)) << column;
    }
    EXPECT_GE(dynamic_cast<const TableHeader&>(*shown.horizontalHeader()).commonPixels(), 10);
}

TEST_F(AnalyserTest, ColumnMenuStaysOpenWhileColumnsAreTicked) {
    table();
    auto& menu = dynamic_cast<ColumnMenu&>(*component_.widget().findChild<QMenu*>(QStringLiteral("columns")));
    menu.popup({});
    menu.setActiveAction(menu.actions()[3]);
    QTest::keyClick(&menu, Qt::Key_Space);
    EXPECT_TRUE(table().isColumnHidden(3));
    // Without a window system a press would close any menu.
    const QPointF place = menu.actionGeometry(menu.actions()[4]).center();
    QMouseEvent release(QEvent::MouseButtonRelease, place, menu.mapToGlobal(place), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&menu, &release);
    EXPECT_TRUE(table().isColumnHidden(4));
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(AnalyserTest, CopySelectionPutsTextAndATableOnTheClipboard) {
    call(component_, 12);
    EXPECT_EQ(copiedText(), QStringLiteral("before")) << "nothing is selected";
    clickRow(3);
    clickRow(0, Qt::ControlModifier);
    call(component_, 12);
    const QStringList lines = copiedText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("1\tH\tΥδρογόνο\t1,008\t")));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("4\tBe\tΒηρύλλιο\t9,0122\t2\t2\t1287\t")));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains(
        QStringLiteral("<td align=\"right\">9,0122</td>")));
    QTest::keyClick(&table(), Qt::Key_Down);
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiedText().count(QLatin1Char('\n')), 2);
}

TEST_F(AnalyserTest, GraphIsCopiedAndPrintedOnlyWhenShown) {
    EXPECT_EQ(ask<std::int16_t>(component_, 22, InvokeKind::method), 0);
    call(component_, 23);
    EXPECT_EQ(copiedText(), QStringLiteral("before"));
    EXPECT_TRUE(site_.printed.empty());
    put(component_, 2, std::int16_t{1});
    EXPECT_EQ(ask<std::int16_t>(component_, 22, InvokeKind::method), 1);
    EXPECT_FALSE(isBlank(QGuiApplication::clipboard()->image()));
    call(component_, 23);
    EXPECT_EQ(site_.printed, std::vector<std::string>{"Kalyxo"});
    EXPECT_FALSE(isBlank(site_.page));
}

TEST(AnalyserComponentWithoutGraphs, SaysSo) {
    DataSite site;
    AnalyserComponent component(site, nullptr, [] { return static_cast<const GraphParts*>(nullptr); });
    component.widget().show();
    put(component, 2, std::int16_t{1});
    static_cast<AnalyserPane&>(component.widget()).refreshNow();
    QCoreApplication::processEvents();
    EXPECT_TRUE(std::ranges::any_of(component.widget().findChildren<QLabel*>(), [](const QLabel* label) {
        return label->isVisible() &&
               label->text().contains(QStringLiteral("δεν είναι δυνατό"), Qt::CaseInsensitive);
    }));
}

TEST_F(AnalyserTest, PointerTellsThePointsName) {
    call(component_, 15, gases);
    put(component_, 2, std::int16_t{1});
    const GraphMarks& marks = graph().graphChart().marks();
    ASSERT_EQ(marks.content().graph.marks.size(), 3U) << "without the row that has no mass";
    const QString told =
        component_.widget().findChild<QWidget*>(QStringLiteral("message"))->accessibleDescription();
    EXPECT_TRUE(told.startsWith(QStringLiteral("1 γραμμή δεν έχει τιμή"))) << told.toStdString();
    const QPointF place = marks.place(marks.content().graph.marks[1]);
    const QPoint at = graph().mapFromScene(graph().graphChart().mapToScene(place));
    QTest::mouseMove(graph().viewport(), at);
    EXPECT_EQ(graph().graphChart().hoverLines(),
              (QStringList{QStringLiteral("μεθάνιο, CH₄"), QStringLiteral("άλλα"),
                           QStringLiteral("Μάζα: 16,04"), QStringLiteral("Βρασμός (°C): −161,5")}));
    QTest::mouseClick(graph().viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(selected(), std::vector<std::int16_t>{2});
}

TEST_F(AnalyserTest, NameUnderThePointerGoesWithItsDataSet) {
    put(component_, 2, std::int16_t{1});
    for (int i = 0; i < 50; ++i) QTest::keyClick(&graph(), Qt::Key_Right);
    EXPECT_FALSE(graph().graphChart().hoverLines().isEmpty());
    call(component_, 15, gases);
    EXPECT_TRUE(graph().graphChart().hoverLines().isEmpty());
}

TEST_F(AnalyserTest, KeysZoomMoveAndReset) {
    put(component_, 2, std::int16_t{1});
    const GraphWindow whole = graph().graphChart().marks().content().window;
    QTest::keyClick(&graph(), Qt::Key_Plus);
    const GraphWindow closer = graph().graphChart().marks().content().window;
    EXPECT_LT(closer.x.span(), whole.x.span());
    QTest::keyClick(&graph(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_GT(graph().graphChart().marks().content().window.x.from, closer.x.from);
    QTest::keyClick(&graph(), Qt::Key_Home);
    EXPECT_EQ(graph().graphChart().marks().content().window, whole);
    put(component_, 7, std::int16_t{2});
    QTest::keyClick(&graph(), Qt::Key_Plus);
    const GraphContent& bars = graph().graphChart().marks().content();
    EXPECT_LT(bars.window.x.span(), bars.graph.whole.x.span());
    EXPECT_NEAR(bars.window.y.span(), bars.graph.whole.y.span(), 1e-4) << "bars keep their feet";
}

}  // namespace
}  // namespace controls::dataanalyser
