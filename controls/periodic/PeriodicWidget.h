#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <functional>

#include "controls/elements/TypeAhead.h"
#include "controls/periodic/Lettering.h"
#include "controls/periodic/TableAccessible.h"
#include "controls/periodic/TableLayout.h"
#include "controls/periodic/model/ElementGrid.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

class CellPainter;
class ScaleBox;
class ValueSlider;
class ViewStrip;

/// The periodic table on the screen. Its strip, slider and box are made when it is first shown.
class PeriodicWidget : public QWidget {
    Q_OBJECT

  public:
    /// `chosen` is called with the atomic number when the reader clicks an element or presses Enter on it.
    PeriodicWidget(std::function<void(int number)> chosen, QWidget* parent);

    const TableState& state() const { return state_; }
    void setState(const TableState& state);

    /// The cell of an element, and the element under a point (0 for none), in the table's coordinates.
    QRect cellOf(int number) const { return layoutNow().cell(placeOf(number)); }
    int elementAt(QPoint point) const { return layoutNow().elementAt(point); }

    /// Selects an element and tells that the reader has chosen it.
    void choose(int number);

    QSize sizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    TableLayout layoutNow() const { return TableLayout(size()); }
    void makeParts();
    /// Takes the keyboard after a click on one of the parts, unless that has it already.
    void takeFocus();
    /// Brings strip, slider and box to the state and into their places.
    void updateParts();
    void updateSlider();
    void select(int number);
    void hover(int number);
    void hoverKind(int kind);
    void setView(TableView view);
    void slide(int value);
    void highlight(int kind);
    /// The kind that stands out now, 0 for none.
    int highlightedNow() const { return hoveredKind_ != 0 ? hoveredKind_ : state_.highlighted; }
    /// Has the cell of an element drawn anew.
    void updateCell(int number);
    void updateCard();
    bool step(int key);
    bool stepView(const QKeyEvent& event);
    bool stepSlider(int key);
    bool highlightByKey(int key);
    void typed(const QKeyEvent& event);
    void paintElements(const CellPainter& cells, const TableLayout& layout, const QRegion& dirty) const;
    void paintPlaceholders(const CellPainter& cells, const TableLayout& layout) const;
    void paintLabels(QPainter& painter, const TableLayout& layout);
    void paintCardOf(QPainter& painter, const QRect& area);

    std::function<void(int)> chosen_;
    TableState state_;
    int hovered_ = 0;
    int hoveredKind_ = 0;
    int pressed_ = 0;
    TypeAhead typeAhead_;
    QElapsedTimer clock_;
    Lettering lettering_;
    TableAccess access_;
    // Children of this window.
    ViewStrip* strip_ = nullptr;
    ValueSlider* slider_ = nullptr;
    ScaleBox* scaleBox_ = nullptr;
};

}  // namespace controls::periodic
