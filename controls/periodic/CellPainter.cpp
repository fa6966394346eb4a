#include "controls/periodic/CellPainter.h"

#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"

namespace controls::periodic {

namespace {

constexpr int leastSymbolPixels = 11;
constexpr double fadedOpacity = 0.28;
constexpr int inset = 2;

/// The part of the cell between two shares of its height.
QRect band(const QRect& cell, double from, double to) {
    const int top = cell.top() + static_cast<int>(cell.height() * from);
    const int bottom = cell.top() + static_cast<int>(cell.height() * to);
    return {cell.left() + inset, top, cell.width() - 2 * inset, bottom - top};
}

/// Draws a ring of this width round an area.
void paintRing(QPainter& painter, const QRect& area, int width, const QColor& color) {
    const QRect outer = area.adjusted(-width, -width, width, width);
    painter.fillRect(QRect(outer.left(), outer.top(), outer.width(), width), color);
    painter.fillRect(QRect(outer.left(), area.bottom() + 1, outer.width(), width), color);
    painter.fillRect(QRect(outer.left(), area.top(), width, area.height()), color);
    painter.fillRect(QRect(area.right() + 1, area.top(), width, area.height()), color);
}

void drawFitting(QPainter& painter, const QRect& area, const QString& text, int pixels) {
    const auto font = appearance::fittingFont(text, area.width(), pixels, CellPainter::leastPixels);
    if (!font) return;
    painter.setFont(*font);
    painter.drawText(area, Qt::AlignCenter | Qt::TextDontClip, text);
}

}  // namespace

CellPainter::CellPainter(QSize cell) {
    const int least = std::min(cell.width() * 9 / 8, cell.height());
    withName_ = cell.width() >= 46 && cell.height() >= 46;
    symbolPixels_ = std::max(least * (withName_ ? 36 : 40) / 100, leastSymbolPixels);
    numberPixels_ = std::max(least * (withName_ ? 17 : 25) / 100, leastPixels);
    smallPixels_ = std::max(least * (withName_ ? 17 : 25) / 100, leastPixels);
}

void CellPainter::paint(QPainter& painter, const QRect& cell, const Element& element, CellMarks marks) const {
    painter.save();
    if (marks.faded) painter.setOpacity(fadedOpacity);
    paintFrame(painter, cell, element.family, marks);
    painter.setPen(appearance::text);
    paintTexts(painter, cell, element);
    painter.restore();
}

void CellPainter::paintFrame(QPainter& painter, const QRect& cell, Family family, CellMarks marks) const {
    const auto colors = appearance::familyColors(family);
    painter.fillRect(cell, colors.fill);
    const int bar = std::max(cell.height() / 24, 2);
    painter.fillRect(QRect(cell.left(), cell.bottom() - bar + 1, cell.width(), bar), colors.edge);
    if (!marks.selected && !marks.hovered) return;
    // The frame lies outside, so that it covers no text.
    paintRing(painter, cell, 2, marks.selected ? appearance::deep : colors.edge);
    if (marks.focused) paintRing(painter, cell.adjusted(-2, -2, 2, 2), 1, appearance::warm);
}

void CellPainter::paintTexts(QPainter& painter, const QRect& cell, const Element& element) const {
    const QString symbol = toQt(element.symbol);
    painter.setFont(appearance::font(numberPixels_));
    painter.drawText(band(cell, withName_ ? 0.04 : 0.03, 0.30).adjusted(1, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, QString::number(element.number));
    const QRect middle = withName_ ? band(cell, 0.19, 0.59) : band(cell, 0.26, 0.74);
    painter.setFont(appearance::fittingFont(symbol, middle.width(), symbolPixels_, leastPixels, QFont::Bold)
                        .value_or(appearance::font(leastPixels, QFont::Bold)));
    painter.drawText(middle, Qt::AlignCenter | Qt::TextDontClip, symbol);
    if (withName_) drawFitting(painter, band(cell, 0.58, 0.77), toQt(element.greekName), smallPixels_);
    drawFitting(painter, withName_ ? band(cell, 0.75, 0.94) : band(cell, 0.67, 0.94),
                toQt(element.massText()), smallPixels_);
}

void CellPainter::paintPlaceholder(QPainter& painter, const QRect& cell, const QString& range,
                                   Family family) const {
    const auto colors = appearance::familyColors(family);
    painter.fillRect(cell, appearance::paper);
    painter.setPen(colors.edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
    painter.setPen(appearance::text);
    drawFitting(painter, cell.adjusted(inset, inset, -inset, -inset), range, numberPixels_);
}

}  // namespace controls::periodic
