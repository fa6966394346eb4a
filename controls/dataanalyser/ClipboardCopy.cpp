#include "controls/dataanalyser/ClipboardCopy.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <memory>
#include <utility>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/model/TableText.h"

namespace controls::dataanalyser {

namespace {

// A copied picture is sharp on paper too.
constexpr double pictureScale = 2;

void copyRows(const Analyser& analyser, std::vector<int> rows) {
    const CopiedTable table{analyser.dataSet(), analyser.layout().shownColumns(), std::move(rows),
                            analyser.unit()};
    auto copied = std::make_unique<QMimeData>();
    copied->setText(toQt(tabbedText(table)));
    copied->setHtml(toQt(htmlTable(table)));
    QGuiApplication::clipboard()->setMimeData(copied.release());
}

}  // namespace

void copyAllRows(const Analyser& analyser) { copyRows(analyser, analyser.rows()); }

void copySelectedRows(const Analyser& analyser) {
    std::vector<int> rows;
    for (const std::int16_t id : analyser.selected()) rows.push_back(analyser.placeOf(id));
    if (!rows.empty()) copyRows(analyser, std::move(rows));
}

void copyGraphPicture(Analyser& analyser, const GraphParts& graphs, QSize size) {
    QImage picture(size * pictureScale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    graphs.paint(analyser, painter, QRectF(picture.rect()), pictureScale);
    painter.end();
    QGuiApplication::clipboard()->setImage(picture);
}

}  // namespace controls::dataanalyser
