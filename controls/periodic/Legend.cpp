#include "controls/periodic/Legend.h"

#include <algorithm>
#include <array>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/periodic/CellLook.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/ColorScale.h"
#include "controls/periodic/ValueText.h"
#include "controls/periodic/model/ElementKinds.h"
#include "controls/periodic/model/QuantityScale.h"

namespace controls::periodic {

namespace {

constexpr int swatchGap = 6;
constexpr int tickHeight = 4;

QString kindText(const TableState& state, int kind) {
    QString name = toQt(kindName(state.view, kind));
    if (state.view == TableView::families) return name;
    const auto count = std::ranges::count_if(elements(), [&](const Element& element) {
        return kindOf(element, state.view, state.kelvin) == kind;
    });
    return QStringLiteral("%1 (%2)").arg(name).arg(count);
}

/// The largest font in which the texts of all kinds fit their items.
QFont fontOfKinds(TextFitter& fitter, const TableLayout& layout, const TableState& state, int width) {
    int pixels = layout.labelPixels() + 1;
    QFont smallest = appearance::font(TextFitter::minPixels);
    for (int kind = 1; kind <= kindCount(state.view); ++kind) {
        const auto font = fitter.font(kindText(state, kind), width, pixels);
        if (!font) return smallest;
        // If one text needs narrowed letters, all get them.
        if (kind == 1 || font->pixelSize() < pixels || font->stretch() != 0) {
            pixels = font->pixelSize();
            smallest = *font;
        }
    }
    return smallest;
}

void paintSwatch(QPainter& painter, const QRect& area, const appearance::GroupColors& colors, bool hatched) {
    painter.fillRect(area, colors.edge);
    const QRect inner = area.adjusted(1, 1, -1, -1);
    hatched ? paintNoData(painter, inner) : painter.fillRect(inner, colors.fill);
}

void paintKinds(QPainter& painter, TextFitter& fitter, const TableLayout& layout, const TableState& state,
                int highlighted) {
    const QRect swatch = layout.swatch();
    const int start = swatch.right() + swatchGap;
    const QFont font = fontOfKinds(fitter, layout, state, layout.kindItem(state.view, 1).width() - start - 2);
    for (int kind = 1; kind <= kindCount(state.view); ++kind) {
        const QRect item = layout.kindItem(state.view, kind);
        if (highlighted == kind) painter.fillRect(item, appearance::selected);
        const bool unknown = state.view == TableView::matter && kind == kindCount(state.view);
        paintSwatch(painter, swatch.translated(item.topLeft()), kindColors(state.view, kind), unknown);
        painter.setPen(appearance::text);
        TextFitter::draw(painter, item.adjusted(start, 0, 0, 0), kindText(state, kind), font, Qt::AlignLeft);
    }
}

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
    if (!quantity) return paintKinds(painter, fitter, layout, state, highlighted);
    paintDescription(painter, fitter, layout, state.view, *quantity);
    paintBar(painter, layout.colorBar(state.view));
    paintTicks(painter, layout, state.view, QuantityScale(*quantity, state.otherScale), *quantity);
}

}  // namespace controls::periodic
