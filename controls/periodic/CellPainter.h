#pragma once

#include <QPainter>
#include <QSize>

#include "controls/common/Element.h"

namespace controls::periodic {

/// How a cell stands out.
struct CellMarks {
    bool selected = false;
    bool hovered = false;
    bool faded = false;
    bool focused = false;
};

/// Draws the cells of one table size. Symbol and atomic number are always there; the relative atomic mass and
/// the name are left out where they would not be readable.
class CellPainter {
  public:
    explicit CellPainter(QSize cell);

    void paint(QPainter& painter, const QRect& cell, const Element& element, CellMarks marks) const;
    /// The place that a period leaves for the elements of a row below, such as "57–71".
    void paintPlaceholder(QPainter& painter, const QRect& cell, const QString& range, Family family) const;

    /// The smallest letters that are still readable, in pixels.
    static constexpr int leastPixels = 8;

  private:
    void paintFrame(QPainter& painter, const QRect& cell, Family family, CellMarks marks) const;
    void paintTexts(QPainter& painter, const QRect& cell, const Element& element) const;

    int numberPixels_;
    int symbolPixels_;
    int smallPixels_;
    bool withName_;
};

}  // namespace controls::periodic
