#include "controls/periodic/Legend.h"

#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/ColorScale.h"
#include "controls/periodic/KindLegend.h"
#include "controls/periodic/ValueText.h"
#include "controls/periodic/model/QuantityScale.h"

namespace controls::periodic {

namespace {

constexpr int tickHeight = 4;

void paintDescription(QPainter& painter, TextFitter& fitter, const TableLayout& layout, TableView view,
                      Quantity quantity) {
    const QString unit = toQt(quantityUnit(quantity));
    const QString name =
        toQt(quantityName(quantity)) + (unit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(unit));
    painter.setPen(appearance::deep);
    fitter.draw(painter, layout.quantityName(view), name, layout.labelPixels() + 2, Qt::AlignLeft,
                QFont::DemiBold);
    const QRect item = layout.noDataItem(view);
    const QRect swatch = layout.swatch();
    // Every element has a year of discovery, so an empty cell there means that it was found later.
    const bool years = quantity == Quantity::discovery;
    paintSwatch(painter, swatch.translated(item.topLeft()), {appearance::ground, appearance::muted}, !years);
    painter.setPen(appearance::text);
    fitter.draw(painter, item.adjusted(swatch.right() + swatchGap, 0, -2, 0),
                years ? QStringLiteral("Άγνωστο ακόμη") : QStringLiteral("Χωρίς τιμή"), layout.labelPixels(),
                Qt::AlignLeft);
}

void paintBar(QPainter& painter, const QRect& bar) {
    for (int x = bar.left(); x <= bar.right(); ++x) {
        const double position = (x - bar.left()) / std::max(bar.width() - 1.0, 1.0);
        painter.fillRect(QRect(x, bar.top(), 1, bar.height()), scaleColor(position));
    }
}

QString tickText(Quantity quantity, double tick) {
    return quantity == Quantity::discovery ? QString::number(tick) : numberText(tick);
}

/// Marks round values. A number that would touch the one before is left out.
void paintTicks(QPainter& painter, const TableLayout& layout, TableView view, const QuantityScale& scale,
                Quantity quantity) {
    const QRect bar = layout.colorBar(view);
    const QRect figures = layout.barFigures(view);
    const QFont font = appearance::font(std::max(layout.labelPixels(), TextFitter::minPixels));
    int taken = figures.left() - figures.height() * 2;
    for (const double tick : scale.ticks()) {
        const int x = bar.left() + static_cast<int>(scale.position(tick) * (bar.width() - 1));
        const QString text = tickText(quantity, tick);
        const int width = TextFitter::widthOf(text, font);
        if (x - width / 2 < taken) continue;
        painter.fillRect(QRect(x, bar.bottom() + 1, 1, tickHeight), appearance::muted);
        painter.setPen(appearance::text);
        TextFitter::draw(
            painter, QRect(x - width / 2, figures.top() + tickHeight, width, figures.height() - tickHeight),
            text, font, Qt::AlignHCenter);
        taken = x + width / 2 + font.pixelSize() / 2;
    }
}

}  // namespace

void paintLegend(QPainter& painter, TextFitter& fitter, const TableLayout& layout, const TableState& state,
                 int highlighted) {
    const auto quantity = quantityOf(state.view);
    if (!quantity) return paintKindLegend(painter, fitter, layout, state, highlighted);
    paintDescription(painter, fitter, layout, state.view, *quantity);
    paintBar(painter, layout.colorBar(state.view));
    paintTicks(painter, layout, state.view, QuantityScale(*quantity, state.otherScale), *quantity);
}

}  // namespace controls::periodic
