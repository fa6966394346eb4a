#pragma once

#include <QPainter>
#include <QSize>

#include "controls/elements/Element.h"
#include "controls/periodic/CellLook.h"
#include "controls/periodic/Lettering.h"

namespace controls::periodic {

/// Draws the cells of one table size. Symbol and atomic number are always there; the last line and the name
/// are left out where they would not be readable.
class CellPainter {
  public:
    CellPainter(QPainter& painter, Lettering& lettering, QSize cell);

    void paint(const QRect& cell, const Element& element, const CellLook& look) const;
    /// The frame of the hovered or selected cell. It lies outside the cell, so that it covers no text.
    void paintFrame(const QRect& cell, const QColor& color, bool focused) const;
    /// The place that a period leaves for the elements of a row below, such as "57–71".
    void paintPlaceholder(const QRect& cell, const QString& range, const QColor& edge) const;

    /// How far a frame reaches out of its cell.
    static constexpr int frameReach = 4;

  private:
    void paintGround(const QRect& cell, const CellLook& look) const;
    void paintTexts(const QRect& cell, const Element& element, const QString& bottom) const;

    QPainter& painter_;
    Lettering& lettering_;
    int numberPixels_;
    int symbolPixels_;
    int smallPixels_;
    bool withName_;
};

/// Fills an area with the ground and the strokes that mean that there is no data.
void paintNoData(QPainter& painter, const QRect& area);

}  // namespace controls::periodic
