#include "controls/dataanalyser/AnalyserControl.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <bit>
#include <cstring>
#include <fstream>
#include <limits>
#include <vector>

#include "controls/dataanalyser/EntryWords.h"
#include "controls/dataanalyser/GraphChart.h"
#include "controls/dataanalyser/GraphMarks.h"
#include "controls/dataanalyser/GraphView.h"
#include "controls/dataanalyser/TableView.h"
#include "platform/text/CodePage1253.h"
#include "tests/controls/RecordingSite.h"

namespace controls::dataanalyser {
namespace {

using platform::InvokeKind;

/// A host with a data folder on drive D: and a printer that draws on a picture.
class DataSite : public RecordingSite {
  public:
    DataSite() {
        write("gases.dat",
              "number: 7\r\ntitle: Αέρια\r\nsource: δοκιμή\r\ncolumn: text | Όνομα\r\n"
              "column: formula | Τύπος\r\ncolumn: category | Είδος\r\ncolumn: number | Μάζα\r\n"
              "column: number | Βρασμός | °C\r\ngraph: 4 5\r\n---\r\n"
              "ήλιο\tHe\tευγενή\t4.00\t-268.9\r\n"
              "μεθάνιο\tCH4\tάλλα\t16.04\t-161.5\r\n"
              "λάθος\tX\tάλλα\tπολύ\t1\r\n"
              "νέον\tNe\tευγενή\t20.18\t-246.0\r\n"
              "άγνωστο\tQ\tάλλα\t\t5\r\n"
              "κομμένο\tY\tάλλα\t1");
    }
    void write(const char* name, const char* text) const {
        QDir(folder_.path()).mkpath(QStringLiteral("datasets"));
        std::ofstream(folder_.path().toStdString() + "/datasets/" + name) << platform::fromUtf8(text);
    }
    const platform::FileSystem& files() const override { return files_; }
    bool print(std::string_view document, const platform::PagePainter& painter) override {
        printed.push_back(std::string(document));
        page = QImage(600, 800, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter onPage(&page);
        painter(onPage, page.rect(), 72);
        return true;
    }

    std::vector<std::string> printed;
    QImage page;

  private:
    QTemporaryDir folder_;
    platform::FileSystem files_{{{'D', platform::DriveType::cdrom, folder_.path().toStdString()}}};
};

bool isBlank(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != Qt::white) return false;
        }
    }
    return true;
}

bool isOf(const platform::Variant& value, platform::TypeCode type) {
    switch (type) {
        case platform::TypeCode::i2:
            return value.get<std::int16_t>() != nullptr;
        case platform::TypeCode::i4:
            return value.get<std::int32_t>() != nullptr;
        case platform::TypeCode::text:
            return value.get<std::string>() != nullptr;
        default:
            return value.get<bool>() != nullptr;
    }
}

constexpr std::int16_t gases = 7;

class AnalyserControlTest : public testing::Test {
  protected:
    AnalyserControlTest() {
        call(control_, 10, std::int32_t{1103}, std::string("D:\\"));
        control_.widget().resize(1016, 640);
        control_.widget().show();
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    }

    AnalyserPane& pane() { return static_cast<AnalyserPane&>(control_.widget()); }
    /// What is under way is carried out first.
    TableView& table() {
        pane().refreshNow();
        return *control_.widget().findChild<TableView*>();
    }
    GraphView& graph() {
        pane().refreshNow();
        QCoreApplication::processEvents();
        return *control_.widget().findChild<GraphView*>();
    }
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
    /// Selects rows by id, as a host does.
    void select(const std::vector<std::int16_t>& ids, std::int16_t top = 0) {
        const auto bytes = std::as_bytes(std::span(ids));
        call(control_, 18, static_cast<std::int32_t>(bytes.size()), top, control_.keepBlock(bytes));
    }
    std::vector<std::int16_t> selected() {
        std::vector<std::int16_t> ids(static_cast<std::size_t>(property<std::int32_t>(control_, 8)) / 2);
        const auto bytes = control_.block(ask<std::int32_t>(control_, 17, InvokeKind::method));
        EXPECT_EQ(bytes.size(), ids.size() * 2);
        if (!ids.empty()) std::memcpy(ids.data(), bytes.data(), bytes.size());
        return ids;
    }
    /// An entry by its word.
    std::int32_t entry(std::int32_t word) {
        return ask<std::int32_t>(control_, 21, InvokeKind::method, place(word));
    }
    void setEntry(std::int32_t word, std::int32_t value) { call(control_, 20, place(word), value); }
    static QString copiedText() { return QGuiApplication::clipboard()->text(); }

    DataSite site_;
    AnalyserControl control_{site_, nullptr, linkedGraphParts};

  private:
    std::int16_t place(std::int32_t word) {
        const auto bytes = control_.block(ask<std::int32_t>(control_, 14, InvokeKind::method));
        std::vector<std::int32_t> words(bytes.size() / 4);
        std::memcpy(words.data(), bytes.data(), bytes.size());
        return static_cast<std::int16_t>(std::ranges::find(words, word) - words.begin() - 1);
    }
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

TEST_F(AnalyserControlTest, EachOperationTakesItsArgumentsAndNoOthers) {
    EXPECT_EQ(property<std::string>(control_, 1), "1.0.40");
    const std::vector<platform::Variant> values{platform::Variant(std::int16_t{1}),
                                                platform::Variant(std::int32_t{1}), platform::Variant(true),
                                                platform::Variant(std::string("x")), platform::Variant()};
    for (const platform::OperationInfo& operation : control_.operations()) {
        const std::size_t count = operation.arguments.size();
        // One argument too many, and one too few.
        EXPECT_FALSE(control_.invoke(operation.dispid, operation.kind,
                                     std::vector(count + 1, platform::Variant(std::int32_t{1}))));
        if (count == 0) continue;
        EXPECT_FALSE(control_.invoke(operation.dispid, operation.kind,
                                     std::vector(count - 1, platform::Variant(std::int32_t{1}))));
        for (const auto& value : values) {
            const bool fits = isOf(value, operation.arguments[0]);
            if (fits) continue;
            EXPECT_FALSE(control_.invoke(operation.dispid, operation.kind, std::vector(count, value)))
                << operation.dispid;
        }
    }
    for (const int dispid : {0, 19, 24, -1}) EXPECT_FALSE(invoke(control_, dispid, InvokeKind::method));
    EXPECT_FALSE(invoke(control_, 8, InvokeKind::propertyPut, std::int32_t{1}));
}

TEST(AnalyserCreation, ReadsAndShowsNothingBeforeItIsShown) {
    RecordingSite site;  // asking it for files ends the test
    AnalyserControl control(site, nullptr, linkedGraphParts);
    call(control, 10, std::int32_t{1103}, std::string("D:\\"));
    EXPECT_EQ(property<std::int16_t>(control, 2), 0);
    EXPECT_TRUE(control.widget().children().isEmpty());
}

TEST_F(AnalyserControlTest, StateComesBack) {
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

    put(control_, 2, std::int16_t{0});
    put(control_, 6, true);
    put(control_, 3, std::int16_t{0});
    put(control_, 5, false);
    call(control_, 15, std::int16_t{0});
    put(control_, 7, std::int16_t{3});
    select({79});

    restore(control_, saved);
    const State again = capture(control_);
    EXPECT_EQ(std::tie(again.mode, again.viewMode, again.option3, again.option7, again.flag5, again.flag6,
                       again.option4, again.value8, again.value9, again.selection, again.entries),
              std::tie(saved.mode, saved.viewMode, saved.option3, saved.option7, saved.flag5, saved.flag6,
                       saved.option4, saved.value8, saved.value9, saved.selection, saved.entries));
    EXPECT_EQ(graph().graphChart().marks().scenery().window.x, (AxisRange{1.5, 60, false}));
}

TEST_F(AnalyserControlTest, NonsenseFallsBack) {
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

TEST_F(AnalyserControlTest, EntriesOfAnUnknownBlockAreNotTaken) {
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

TEST_F(AnalyserControlTest, FaultyRowsAreNamedInTheMessageLine) {
    call(control_, 15, gases);
    ASSERT_EQ(table().model()->rowCount(), 4);
    EXPECT_EQ(cell(1, 1), "CH₄");
    EXPECT_EQ(cell(3, 3), "–");
    const QString told =
        control_.widget().findChild<QWidget*>(QStringLiteral("message"))->accessibleDescription();
    EXPECT_TRUE(told.contains(QStringLiteral("gases.dat, γραμμή 13 («λάθος»)"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("γραμμή 16 («κομμένο»): το αρχείο τελειώνει απότομα")));
    EXPECT_TRUE(told.contains(QStringLiteral("Πηγή: δοκιμή")));
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
    EXPECT_EQ(selected(), std::vector<std::int16_t>{1}) << "the selection stays with its element";
    clickHeading(0);
    EXPECT_FALSE(property<bool>(control_, 5));
}

TEST_F(AnalyserControlTest, KeysSortByTheColumnUnderTheCursor) {
    table().setCurrentIndex(table().model()->index(0, 2));
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(property<std::int16_t>(control_, 3), 2);
    EXPECT_EQ(cell(0, 2), "Ψευδάργυρος");
    QTest::keyClick(&table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(cell(0, 2), "Άζωτο");
}

TEST_F(AnalyserControlTest, DataSetAndCategoryAreChosenInTheStrip) {
    const auto boxes = control_.widget().findChildren<QComboBox*>();
    QTest::keyClick(boxes[1], Qt::Key_Down);
    EXPECT_EQ(entry(categoryWord), 1);
    EXPECT_EQ(table().model()->rowCount(), 7) << "non-metals";
    QTest::keyClick(boxes[0], Qt::Key_Down);
    EXPECT_EQ(ask<std::int16_t>(control_, 13, InvokeKind::method), gases);
    EXPECT_EQ(table().model()->rowCount(), 4);
    EXPECT_EQ(boxes[1]->currentIndex(), 0);
}

TEST_F(AnalyserControlTest, TypingMovesTheCursor) {
    QTest::keyClicks(&table(), QStringLiteral("au"));
    EXPECT_EQ(property<std::int32_t>(control_, 4), 79);
    EXPECT_EQ(selected(), std::vector<std::int16_t>{79});
}

TEST_F(AnalyserControlTest, CopySelectionPutsTextAndATableOnTheClipboard) {
    call(control_, 12);
    EXPECT_EQ(copiedText(), QStringLiteral("before")) << "nothing is selected";
    clickRow(3);
    clickRow(0, Qt::ControlModifier);
    call(control_, 12);
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

TEST_F(AnalyserControlTest, CopyAllDataFollowsOrderUnitAndColumns) {
    put(control_, 3, std::int16_t{6});
    put(control_, 6, false);
    setEntry(0, 0x10000);
    call(control_, 11);
    const QStringList lines = copiedText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 120);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("Σύμβολο\t")));
    EXPECT_TRUE(lines[0].contains(QStringLiteral("Σημείο τήξης (K)")));
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("He\t")));
    put(control_, 6, true);
    call(control_, 11);
    EXPECT_TRUE(copiedText().contains(QStringLiteral("\t-272,20\t")));
}

TEST_F(AnalyserControlTest, GraphIsCopiedAndPrintedOnlyWhenShown) {
    EXPECT_EQ(ask<std::int16_t>(control_, 22, InvokeKind::method), 0);
    call(control_, 23);
    EXPECT_EQ(copiedText(), QStringLiteral("before"));
    EXPECT_TRUE(site_.printed.empty());
    put(control_, 2, std::int16_t{1});
    EXPECT_EQ(ask<std::int16_t>(control_, 22, InvokeKind::method), 1);
    EXPECT_FALSE(isBlank(QGuiApplication::clipboard()->image()));
    call(control_, 23);
    EXPECT_EQ(site_.printed, std::vector<std::string>{"Kalyxo"});
    EXPECT_FALSE(isBlank(site_.page));
}

TEST(AnalyserControlWithoutGraphs, SaysSoAndCopiesAndPrintsNothing) {
    DataSite site;
    AnalyserControl control(site, nullptr, [] { return static_cast<const GraphParts*>(nullptr); });
    control.widget().show();
    put(control, 2, std::int16_t{1});
    static_cast<AnalyserPane&>(control.widget()).refreshNow();
    QCoreApplication::processEvents();
    EXPECT_TRUE(std::ranges::any_of(control.widget().findChildren<QLabel*>(), [](const QLabel* label) {
        return label->isVisible() &&
               label->text().contains(QStringLiteral("δεν είναι δυνατό"), Qt::CaseInsensitive);
    }));
    EXPECT_EQ(ask<std::int16_t>(control, 22, InvokeKind::method), 0);
    call(control, 23);
    EXPECT_TRUE(site.printed.empty());
}

TEST_F(AnalyserControlTest, PointerTellsThePointsName) {
    call(control_, 15, gases);
    put(control_, 2, std::int16_t{1});
    const GraphMarks& marks = graph().graphChart().marks();
    ASSERT_EQ(marks.scenery().graph.marks.size(), 3U) << "without the row that has no mass";
    const QPointF place = marks.place(marks.scenery().graph.marks[1]);
    const QPoint at = graph().mapFromScene(graph().graphChart().mapToScene(place));
    QTest::mouseMove(graph().viewport(), at);
    EXPECT_EQ(graph().graphChart().hoverLines(),
              (QStringList{QStringLiteral("μεθάνιο, CH₄"), QStringLiteral("Μάζα: 16,04"),
                           QStringLiteral("Βρασμός (°C): −161,5")}));
    QTest::mouseClick(graph().viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(selected(), std::vector<std::int16_t>{2});
}

TEST_F(AnalyserControlTest, NameUnderThePointerGoesWithItsDataSet) {
    put(control_, 2, std::int16_t{1});
    for (int i = 0; i < 50; ++i) QTest::keyClick(&graph(), Qt::Key_Right);
    EXPECT_FALSE(graph().graphChart().hoverLines().isEmpty());
    call(control_, 15, gases);
    EXPECT_TRUE(graph().graphChart().hoverLines().isEmpty());
}

TEST_F(AnalyserControlTest, KeysZoomMoveAndReset) {
    put(control_, 2, std::int16_t{1});
    const GraphWindow whole = graph().graphChart().marks().scenery().window;
    QTest::keyClick(&graph(), Qt::Key_Plus);
    const GraphWindow closer = graph().graphChart().marks().scenery().window;
    EXPECT_LT(closer.x.span(), whole.x.span());
    QTest::keyClick(&graph(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_GT(graph().graphChart().marks().scenery().window.x.from, closer.x.from);
    QTest::keyClick(&graph(), Qt::Key_Home);
    EXPECT_EQ(graph().graphChart().marks().scenery().window, whole);
    QTest::keyClick(&graph(), Qt::Key_Right);
    EXPECT_EQ(graph().graphChart().hoverLines()[0], QStringLiteral("H, Υδρογόνο"));
}

}  // namespace
}  // namespace controls::dataanalyser
