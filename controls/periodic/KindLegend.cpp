#include "controls/periodic/KindLegend.h"

#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/periodic/CellLook.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/model/ElementKinds.h"

namespace controls::periodic {

namespace {

QString kindText(const TableState& state, int kind) {
    QString name = toQt(kindName(state.view, kind));
    if (state.view == TableView::families || state.view == TableView::groups) return name;
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

}  // namespace

void paintKindLegend(QPainter& painter, TextFitter& fitter, const TableLayout& layout,
                     const TableState& state, int highlighted) {
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

}  // namespace controls::periodic
