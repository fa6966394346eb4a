#include "controls/periodic/ElementCard.h"

#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"

namespace controls::periodic {

namespace {

constexpr int leastPixels = 9;
constexpr int factColumns = 2;

QString withUnit(const Figure& figure, const QString& unit) {
    return figure.known() ? toQt(figure.withComma()) + unit : QStringLiteral("–");
}

QString matterText(Matter matter) {
    switch (matter) {
        case Matter::solid:
            return QStringLiteral("στερεό");
        case Matter::liquid:
            return QStringLiteral("υγρό");
        case Matter::gas:
            return QStringLiteral("αέριο");
        case Matter::unknown:
            break;
    }
    return QStringLiteral("–");
}

QString blockLetter(Block block) {
    constexpr const char* letters = "spdf";
    return {QLatin1Char(letters[static_cast<int>(block)])};
}

void drawFitting(QPainter& painter, const QRect& area, const QString& text, int pixels,
                 QFont::Weight weight = QFont::Normal, Qt::Alignment align = Qt::AlignLeft) {
    const auto font = appearance::fittingFont(text, area.width(), pixels, leastPixels, weight);
    if (!font) return;
    painter.setFont(*font);
    painter.drawText(area, static_cast<int>(align | Qt::AlignVCenter) | Qt::TextDontClip, text);
}

void paintPanel(QPainter& painter, const QRect& area) {
    painter.fillRect(area, appearance::paper);
    painter.setPen(appearance::line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void paintTile(QPainter& painter, const QRect& tile, const Element& element) {
    const auto colors = appearance::familyColors(element.family);
    painter.fillRect(tile, colors.fill);
    painter.fillRect(QRect(tile.left(), tile.top(), 4, tile.height()), colors.edge);
    painter.setPen(appearance::text);
    const int unit = tile.height() / 10;
    const QRect inner = tile.adjusted(10, unit / 2, -6, -unit / 2);
    drawFitting(painter, QRect(inner.left(), inner.top(), inner.width(), 2 * unit),
                QString::number(element.number), unit * 3 / 2);
    drawFitting(painter, QRect(inner.left(), inner.top() + 2 * unit, inner.width(), 5 * unit),
                toQt(element.symbol), unit * 4, QFont::Bold, Qt::AlignHCenter);
    drawFitting(painter, QRect(inner.left(), inner.top() + 7 * unit, inner.width(), 2 * unit),
                toQt(element.massText()), unit * 3 / 2, QFont::Normal, Qt::AlignHCenter);
}

void paintHeading(QPainter& painter, const QRect& area, const Element& element) {
    const int nameHeight = area.height() * 6 / 10;
    const int pixels = std::max(nameHeight * 7 / 10, leastPixels + 2);
    const QString name = toQt(element.greekName);
    painter.setPen(appearance::deep);
    const QRect nameArea(area.left(), area.top(), area.width(), nameHeight);
    drawFitting(painter, nameArea, name, pixels, QFont::Bold);
    const int used = painter.fontMetrics().horizontalAdvance(name) + pixels / 2;
    painter.setPen(appearance::muted);
    drawFitting(painter, nameArea.adjusted(used, 0, 0, 0), toQt(element.englishName), pixels * 3 / 4);
    const QString where = toQt(familyName(element.family)) + QStringLiteral(" · ") + placeText(element);
    painter.setPen(appearance::text);
    drawFitting(painter,
                QRect(area.left(), area.top() + nameHeight, area.width(), area.height() - nameHeight), where,
                std::max(pixels * 6 / 10, leastPixels + 1));
}

/// The largest font in which each fact, label and value, fits one line of `width`.
QFont fontOfFacts(const std::vector<Fact>& facts, int width, int pixels) {
    const auto longest = std::ranges::max_element(facts, {}, [&](const Fact& fact) {
        return QFontMetrics(appearance::font(pixels)).horizontalAdvance(fact.label + fact.value);
    });
    return appearance::fittingFont(longest->label + longest->value, width - pixels, pixels, leastPixels)
        .value_or(appearance::font(leastPixels));
}

void paintFact(QPainter& painter, const QRect& area, const Fact& fact) {
    painter.setPen(appearance::muted);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, fact.label);
    painter.setPen(appearance::text);
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, fact.value);
}

void paintFacts(QPainter& painter, const QRect& area, const Element& element) {
    const auto facts = factsOf(element);
    const int rows = (static_cast<int>(facts.size()) + factColumns - 1) / factColumns;
    const int rowHeight = area.height() / rows;
    const int gutter = area.width() / 14;
    const int width = (area.width() - gutter) / factColumns;
    painter.setFont(fontOfFacts(facts, width, std::clamp(rowHeight * 6 / 10, leastPixels + 2, 20)));
    for (int i = 0; i < static_cast<int>(facts.size()); ++i) {
        const QRect place(area.left() + i / rows * (width + gutter), area.top() + i % rows * rowHeight, width,
                          rowHeight);
        paintFact(painter, place, facts[static_cast<std::size_t>(i)]);
    }
}

}  // namespace

std::vector<Fact> factsOf(const Element& element) {
    const QString kelvin = QStringLiteral(" K");
    const QString year =
        element.discovered == antiquity ? QStringLiteral("αρχαιότητα") : QString::number(element.discovered);
    return {{QStringLiteral("Κατάσταση"), matterText(element.matter())},
            {QStringLiteral("Σημείο τήξης"), withUnit(element.meltingPoint, kelvin)},
            {QStringLiteral("Σημείο βρασμού"), withUnit(element.boilingPoint, kelvin)},
            {QStringLiteral("Πυκνότητα"), withUnit(element.density, QStringLiteral(" g/cm³"))},
            {QStringLiteral("Ηλεκτραρνητικότητα"), withUnit(element.electronegativity, QString())},
            {QStringLiteral("Ανακάλυψη"), year}};
}

QString placeText(const Element& element) {
    const QString rest =
        QStringLiteral("περίοδος %1, τομέας %2").arg(element.period()).arg(blockLetter(element.block()));
    return element.group() == 0 ? rest : QStringLiteral("ομάδα %1, ").arg(element.group()) + rest;
}

void paintCard(QPainter& painter, const QRect& area, const Element& element) {
    paintPanel(painter, area);
    const QRect tile(area.left() + 1, area.top() + 1, std::min(area.height(), area.width() / 4) - 2,
                     area.height() - 2);
    paintTile(painter, tile, element);
    const int space = area.height() / 20 + 2;
    const QRect rest(QPoint(tile.right() + 2 * space, area.top() + space),
                     QPoint(area.right() - 2 * space, area.bottom() - space));
    const int heading = rest.height() * 42 / 100;
    paintHeading(painter, QRect(rest.left(), rest.top(), rest.width(), heading), element);
    paintFacts(painter, rest.adjusted(0, heading + space / 2, 0, 0), element);
}

void paintEmptyCard(QPainter& painter, const QRect& area) {
    paintPanel(painter, area);
    painter.fillRect(QRect(area.left(), area.top(), 4, area.height()), appearance::warm);
    const int unit = area.height() / 10;
    const QRect inner = area.adjusted(unit + 8, 2 * unit, -unit, -2 * unit);
    painter.setPen(appearance::deep);
    drawFitting(painter, QRect(inner.left(), inner.top(), inner.width(), 3 * unit),
                QStringLiteral("Περιοδικός Πίνακας"), std::min(unit * 5 / 2, 40), QFont::Bold);
    painter.setPen(appearance::muted);
    drawFitting(painter, QRect(inner.left(), inner.top() + 3 * unit, inner.width(), 3 * unit),
                QStringLiteral("Επίλεξε ένα στοιχείο ή γράψε το σύμβολο ή το όνομά του"),
                std::clamp(unit * 3 / 2, 11, 22));
}

}  // namespace controls::periodic
