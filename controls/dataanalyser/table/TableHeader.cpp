#include "controls/dataanalyser/table/TableHeader.h"

#include <QPainter>
#include <QPainterPath>

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/look/ShownText.h"

namespace controls::dataanalyser {

namespace {

constexpr int headerHeight = 54;
constexpr int arrowSpace = 10;
constexpr int textFlags = Qt::AlignCenter | Qt::TextWordWrap;

/// Adds soft hyphens to words that are too long for a narrow column, and keeps units on one line.
QString withBreaks(QString words) {
    const qsizetype unit = words.lastIndexOf(u'(');
    if (unit >= 0) {
        QString kept = words.mid(unit).replace(u' ', QChar(QChar::Nbsp));
        words = words.left(unit) + kept.replace(QLatin1Char('/'), QStringLiteral("\u2060/\u2060"));
    }
    words.replace(QStringLiteral("Έτος ανακάλυψης"), QStringLiteral("Έτος\nανακά\u00ADλυψης"));
    words.replace(QStringLiteral("Ηλεκτραρνητικότητα"), QStringLiteral("Ηλεκτρ\u00ADαρνητι\u00ADκότητα"));
    words.replace(QStringLiteral("Ηλεκτρονιοσυγγένεια"), QStringLiteral("Ηλεκτρονιο\u00ADσυγγένεια"));
    words.replace(QStringLiteral("van der"), QStringLiteral("van\u00A0der"));
    return words;
}

QRect textArea(const QRect& section) { return section.adjusted(2, 2, -3, -arrowSpace); }

bool fits(const QString& words, const QSize& area, int pixels) {
    const QFontMetrics metrics(appearance::font(pixels, QFont::DemiBold));
    const QSize needed = metrics.boundingRect(QRect({}, area), textFlags, words).size();
    return needed.width() <= area.width() && needed.height() <= area.height();
}

void paintArrow(QPainter& painter, const QRect& area, bool descending) {
    constexpr int half = 4;
    const QPointF middle(area.center().x(), area.bottom() - arrowSpace / 2.0);
    const double tip = descending ? half / 2.0 : -half / 2.0;
    QPainterPath arrow(middle + QPointF(0, tip));
    arrow.lineTo(middle + QPointF(-half, -tip));
    arrow.lineTo(middle + QPointF(half, -tip));
    arrow.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(arrow, appearance::warm);
}

}  // namespace

TableHeader::TableHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSortIndicatorShown(true);
    setMinimumSectionSize(24);
    setAccessibleName(QStringLiteral("Επικεφαλίδες στηλών"));
}

QSize TableHeader::sizeHint() const { return {QHeaderView::sizeHint().width(), headerHeight}; }

QString TableHeader::text(int section) const {
    return withBreaks(model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
}

int TableHeader::commonPixels() const {
    int pixels = tableFontPixels;
    for (int section = 0; section < count(); ++section) {
        if (isSectionHidden(section)) continue;
        const QSize area = textArea(QRect(0, 0, sectionSize(section), height())).size();
        while (pixels > minTableFontPixels && !fits(text(section), area, pixels)) --pixels;
    }
    return pixels;
}

void TableHeader::paintEvent(QPaintEvent* event) {
    pixels_ = commonPixels();
    QHeaderView::paintEvent(event);
}

void TableHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->save();
    const bool sorted = sortIndicatorSection() == logicalIndex;
    painter->fillRect(rect, sorted ? appearance::deep.lighter(125) : appearance::deep);
    painter->fillRect(QRect(rect.right(), rect.top() + 8, 1, rect.height() - 16), appearance::accent);
    painter->setFont(appearance::font(pixels_, QFont::DemiBold));
    painter->setPen(appearance::paper);
    painter->drawText(textArea(rect), textFlags, text(logicalIndex));
    if (sorted) paintArrow(*painter, rect, sortIndicatorOrder() == Qt::DescendingOrder);
    painter->restore();
}

}  // namespace controls::dataanalyser
