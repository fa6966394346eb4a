#include "controls/periodic/TablePainter.h"

#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/ElementCard.h"
#include "controls/periodic/Legend.h"

namespace controls::periodic {

namespace {

void paintLabels(QPainter& painter, TextFitter& fitter, const TableLayout& layout) {
    painter.setPen(appearance::muted);
    const int pixels = layout.labelPixels();
    for (int group = 1; group <= columnCount; ++group) {
        fitter.draw(painter, layout.groupLabel(group), QString::number(group), pixels, Qt::AlignCenter,
                    QFont::DemiBold);
    }
    for (int period = 1; period <= 7; ++period) {
        fitter.draw(painter, layout.periodLabel(period), QString::number(period), pixels, Qt::AlignCenter,
                    QFont::DemiBold);
    }
    for (const auto& [row, family] :
         {std::pair(lanthanideRow, Family::lanthanide), std::pair(actinideRow, Family::actinide)}) {
        fitter.draw(painter, layout.rowName(row), toQt(familyName(family)), pixels + 2, Qt::AlignRight,
                    QFont::DemiBold);
    }
}

void paintPlaceholders(const CellPainter& cells, const TableLayout& layout, TableView view) {
    const auto edge = [view](Family family) {
        return view == TableView::families ? appearance::familyColors(family).edge : appearance::line;
    };
    cells.paintPlaceholder(layout.cell({innerColumn, 6}), QStringLiteral("57–71"), edge(Family::lanthanide));
    cells.paintPlaceholder(layout.cell({innerColumn, 7}), QStringLiteral("89–103"), edge(Family::actinide));
}

void paintElements(const CellPainter& cells, const TableLayout& layout, const TableShown& shown,
                   const QRegion& dirty) {
    for (const Element& element : elements()) {
        const QRect cell = layout.cell(placeOf(element.number));
        if (dirty.intersects(cell)) {
            cells.paint(cell, element, lookOf(element, shown.state, shown.highlighted));
        }
    }
    if (shown.hovered != 0) {
        cells.paintFrame(layout.cell(placeOf(shown.hovered)), appearance::accent, false);
    }
    if (const int selected = shown.state.selected; selected != 0) {
        cells.paintFrame(layout.cell(placeOf(selected)), appearance::deep, shown.focused);
    }
}

void paintCardOf(QPainter& painter, TextFitter& fitter, const QRect& area, const TableShown& shown) {
    const Element* element = findElement(shown.hovered != 0 ? shown.hovered : shown.state.selected);
    if (element) return paintCard(painter, fitter, area, *element, shown.state);
    paintEmptyCard(painter, fitter, area);
    if (!shown.focused) return;
    // No cell can show that the table has the focus.
    painter.setPen(QPen(appearance::deep, 2));
    painter.drawRect(area.adjusted(1, 1, -1, -1));
}

}  // namespace

void paintTable(QPainter& painter, TextFitter& fitter, const TableLayout& layout, const TableShown& shown,
                const QRegion& dirty) {
    const CellPainter cells(painter, fitter, layout.cellSize());
    painter.fillRect(dirty.boundingRect(), appearance::ground);
    paintLabels(painter, fitter, layout);
    paintPlaceholders(cells, layout, shown.state.view);
    paintElements(cells, layout, shown, dirty);
    if (dirty.intersects(layout.card())) paintCardOf(painter, fitter, layout.card(), shown);
    if (dirty.intersects(layout.legend(shown.state.view))) {
        paintLegend(painter, fitter, layout, shown.state, shown.highlighted);
    }
}

}  // namespace controls::periodic
