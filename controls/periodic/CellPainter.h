#pragma once

#include <QPainter>
#include <QSize>

#include "controls/elements/Element.h"
#include "controls/periodic/CellLook.h"
#include "controls/periodic/TextFitter.h"

namespace controls::periodic {

/// Draws the cells of a table whose cells have one size. Every cell shows symbol and atomic number. The name
/// and the last line are left out where they could not be read.
class CellPainter {
  public:
    CellPainter(QPainter& painter, TextFitter& fitter, QSize cell);

    void paint(const QRect& cell, const Element& element, const CellLook& look) const;
    /// The frame of the hovered or selected cell. It lies outside the cell, so that it covers no text.
    void paintFrame(const QRect& cell, const QColor& color, bool focused) const;
    /// The cell that stands in a period for the elements of a row below, such as "57–71".
    void paintPlaceholder(const QRect& cell, const QString& range, const QColor& edge) const;

    /// How many pixels a frame lies outside its cell.
    static constexpr int frameReach = 4;

  private:
    void paintGround(const QRect& cell, const CellLook& look) const;
    void paintTexts(const QRect& cell, const Element& element, const QString& bottom) const;

    QPainter& painter_;
    TextFitter& fitter_;
    int numberPixels_;
    int symbolPixels_;
    int smallPixels_;
    bool withName_;
};

/// Fills an area with the pattern that means that there is no data.
void paintNoData(QPainter& painter, const QRect& area);

/// Draws a small framed area as an example in a legend, with the pattern of missing data if it is hatched.
void paintSwatch(QPainter& painter, const QRect& area, const appearance::GroupColors& colors, bool hatched);
/// The room between a swatch and the text behind it, in pixels.
inline constexpr int swatchGap = 6;

}  // namespace controls::periodic
