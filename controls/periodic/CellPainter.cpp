#include "controls/periodic/CellPainter.h"

#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"

namespace controls::periodic {

namespace {

constexpr int minSymbolPixels = 11;
constexpr int inset = 2;
constexpr int strokeDistance = 7;

/// The part of a cell between two fractions of its height.
QRect band(const QRect& cell, double from, double to) {
    const int top = cell.top() + static_cast<int>(cell.height() * from);
    const int bottom = cell.top() + static_cast<int>(cell.height() * to);
    return {cell.left() + inset, top, cell.width() - 2 * inset, bottom - top};
}

/// Draws a ring of this width around an area.
void paintRing(QPainter& painter, const QRect& area, int width, const QColor& color) {
    const QRect outer = area.adjusted(-width, -width, width, width);
    painter.fillRect(QRect(outer.left(), outer.top(), outer.width(), width), color);
    painter.fillRect(QRect(outer.left(), area.bottom() + 1, outer.width(), width), color);
    painter.fillRect(QRect(outer.left(), area.top(), width, area.height()), color);
    painter.fillRect(QRect(area.right() + 1, area.top(), width, area.height()), color);
}

}  // namespace

void paintNoData(QPainter& painter, const QRect& area) {
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.fillRect(area, noData);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(noDataStroke, 1.5));
    for (int x = area.left(); x < area.right() + area.height(); x += strokeDistance) {
        painter.drawLine(x, area.top(), x - area.height(), area.bottom());
    }
    painter.restore();
}

void paintSwatch(QPainter& painter, const QRect& area, const appearance::GroupColors& colors, bool hatched) {
    painter.fillRect(area, colors.edge);
    const QRect inner = area.adjusted(1, 1, -1, -1);
    hatched ? paintNoData(painter, inner) : painter.fillRect(inner, colors.fill);
}

CellPainter::CellPainter(QPainter& painter, TextFitter& fitter, QSize cell)
    : painter_(painter), fitter_(fitter) {
    const int side = std::min(cell.width() * 9 / 8, cell.height());
    withName_ = cell.width() >= 46 && cell.height() >= 46;
    symbolPixels_ = std::max(side * (withName_ ? 36 : 40) / 100, minSymbolPixels);
    numberPixels_ = std::max(side * (withName_ ? 17 : 25) / 100, TextFitter::minPixels);
    smallPixels_ = numberPixels_;
}

void CellPainter::paint(const QRect& cell, const Element& element, const CellLook& look) const {
    paintGround(cell, look);
    painter_.setPen(look.text);
    if (look.ground == CellLook::Ground::empty) {
        fitter_.draw(painter_, cell, QString::number(element.number), numberPixels_, Qt::AlignCenter);
    } else {
        paintTexts(cell, element, look.bottom);
    }
}

void CellPainter::paintGround(const QRect& cell, const CellLook& look) const {
    if (look.ground == CellLook::Ground::empty) {
        painter_.fillRect(cell, appearance::line);
        painter_.fillRect(cell.adjusted(1, 1, -1, -1), appearance::ground);
        return;
    }
    if (look.ground == CellLook::Ground::hatched) {
        paintNoData(painter_, cell);
    } else {
        painter_.fillRect(cell, look.fill);
    }
    const int bar = std::max(cell.height() / 24, 2);
    painter_.fillRect(QRect(cell.left(), cell.bottom() - bar + 1, cell.width(), bar), look.edge);
}

void CellPainter::paintFrame(const QRect& cell, const QColor& color, bool focused) const {
    // A light line between a dark cell and its frame.
    paintRing(painter_, cell, 1, appearance::paper);
    paintRing(painter_, cell.adjusted(-1, -1, 1, 1), 2, color);
    if (focused) paintRing(painter_, cell.adjusted(-3, -3, 3, 3), 1, appearance::warm);
}

void CellPainter::paintTexts(const QRect& cell, const Element& element, const QString& bottom) const {
    fitter_.draw(painter_, band(cell, withName_ ? 0.04 : 0.03, 0.30).adjusted(1, 0, 0, 0),
                 QString::number(element.number), numberPixels_, Qt::AlignLeft | Qt::AlignTop);
    fitter_.draw(painter_, withName_ ? band(cell, 0.19, 0.59) : band(cell, 0.26, 0.74), toQt(element.symbol),
                 symbolPixels_, Qt::AlignCenter, QFont::Bold);
    if (withName_) {
        fitter_.draw(painter_, band(cell, 0.58, 0.77), toQt(element.greekName), smallPixels_,
                     Qt::AlignCenter);
    }
    fitter_.draw(painter_, withName_ ? band(cell, 0.75, 0.94) : band(cell, 0.67, 0.94), bottom, smallPixels_,
                 Qt::AlignCenter);
}

void CellPainter::paintPlaceholder(const QRect& cell, const QString& range, const QColor& edge) const {
    painter_.fillRect(cell, edge);
    painter_.fillRect(cell.adjusted(1, 1, -1, -1), appearance::paper);
    painter_.setPen(appearance::text);
    fitter_.draw(painter_, cell.adjusted(inset, inset, -inset, -inset), range, numberPixels_,
                 Qt::AlignCenter);
}

}  // namespace controls::periodic
