#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <algorithm>
#include <cstring>
#include <vector>

#include "controls/dataanalyser/AnalyserComponent.h"
#include "controls/dataanalyser/graph/GraphView.h"
#include "controls/dataanalyser/graph/LinkedGraphParts.h"
#include "controls/dataanalyser/table/TableView.h"
#include "platform/text/CodePage1253.h"
#include "tests/controls/RecordingSite.h"
#include "tests/support/TestFolder.h"

namespace controls::dataanalyser {

/// A host with a data folder on drive D:, whose data set has faulty rows, and with a printer that draws on a
/// picture.
class DataSite : public RecordingSite {
  public:
    DataSite() {
        folder_.write("datasets/gases.dat",
                      platform::fromUtf8(
                          "number: 7\r\ntitle: Αέρια\r\nsource: δοκιμή\r\ncolumn: text | Όνομα\r\n"
                          "column: formula | Τύπος\r\ncolumn: category | Είδος\r\ncolumn: number | Μάζα\r\n"
                          "column: number | Βρασμός | °C\r\ngraph: 4 5\r\n---\r\n"
                          "ήλιο\tHe\tευγενή\t4.00\t-268.9\r\n"
                          "μεθάνιο\tCH4\tάλλα\t16.04\t-161.5\r\n"
                          "λάθος\tX\tάλλα\tπολύ\t1\r\n"
                          "νέον\tNe\tευγενή\t20.18\t-246.0\r\n"
                          "άγνωστο\tQ\tάλλα\t\t5\r\n"
                          "κομμένο\tY\tάλλα\t1"));
    }
    const platform::FileSystem& files() const override { return files_; }
    bool print(std::string_view document, const platform::PagePainter& painter) override {
        printed.emplace_back(document);
        page = QImage(600, 800, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter onPage(&page);
        painter(onPage, page.rect(), 72);
        return true;
    }

    std::vector<std::string> printed;
    QImage page;

  private:
    TestFolder folder_;
    platform::FileSystem files_{{{'D', platform::DriveType::cdrom, folder_.path()}}};
};

/// The number of the data set in its data folder.
inline constexpr std::int16_t gases = 7;

/// The analyser on the screen, with that data folder.
class AnalyserTest : public testing::Test {
  protected:
    AnalyserTest() {
        call(component_, 10, std::int32_t{1103}, std::string("D:\\"));
        component_.widget().resize(1016, 640);
        component_.widget().show();
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    }

    AnalyserPane& pane() { return static_cast<AnalyserPane&>(component_.widget()); }
    /// The table, after all changes have been shown.
    TableView& table() {
        pane().refreshNow();
        return dynamic_cast<TableView&>(*component_.widget().findChild<QTableView*>());
    }
    GraphView& graph() {
        pane().refreshNow();
        QCoreApplication::processEvents();
        return dynamic_cast<GraphView&>(*component_.widget().findChild<QChartView*>());
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
        call(component_, 18, static_cast<std::int32_t>(bytes.size()), top, component_.keepBlock(bytes));
    }
    std::vector<std::int16_t> selected() {
        std::vector<std::int16_t> ids(static_cast<std::size_t>(property<std::int32_t>(component_, 8)) / 2);
        const auto bytes = component_.block(ask<std::int32_t>(component_, 17, platform::InvokeKind::method));
        EXPECT_EQ(bytes.size(), ids.size() * 2);
        if (!ids.empty()) std::memcpy(ids.data(), bytes.data(), bytes.size());
        return ids;
    }
    /// The value of the entry with this word.
    std::int32_t entry(std::int32_t word) {
        return ask<std::int32_t>(component_, 21, platform::InvokeKind::method, place(word));
    }
    void setEntry(std::int32_t word, std::int32_t value) { call(component_, 20, place(word), value); }
    static QString copiedText() { return QGuiApplication::clipboard()->text(); }

    DataSite site_;
    AnalyserComponent component_{site_, nullptr, linkedGraphParts};

  private:
    std::int16_t place(std::int32_t word) {
        const auto bytes = component_.block(ask<std::int32_t>(component_, 14, platform::InvokeKind::method));
        std::vector<std::int32_t> words(bytes.size() / 4);
        std::memcpy(words.data(), bytes.data(), bytes.size());
        return static_cast<std::int16_t>(std::ranges::find(words, word) - words.begin() - 1);
    }
};

}  // namespace controls::dataanalyser
