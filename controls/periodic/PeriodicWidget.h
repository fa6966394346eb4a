#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <functional>

#include "controls/elements/TypeAhead.h"
#include "controls/periodic/TableAccessible.h"
#include "controls/periodic/TableLayout.h"
#include "controls/periodic/TextFitter.h"
#include "controls/periodic/model/ElementGrid.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

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

    /// The cell of an element, and the element at a point (0 for none), in the table's coordinates.
    QRect cellOf(int number) const { return layoutNow().cell(placeOf(number)); }
    int elementAt(QPoint point) const { return layoutNow().elementAt(point); }

    /// Selects an element and calls `chosen`.
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
    /// Takes the focus after a click on one of the parts, unless the table or a part has it.
    void takeFocus();
    /// Places strip, slider and box, and makes them show the state.
    void updateParts();
    void updateSlider();
    void select(int number);
    void hover(int number);
    void hoverKind(int kind);
    void setView(TableView view);
    void slide(int value);
    void highlight(int kind);
    /// Draws the cell of an element anew.
    void updateCell(int number);
    void updateCard();
    /// The element before or after the selected one whose sign on the card is at a point, 0 for none.
    int elementOfStep(QPoint point) const;
    bool step(int key);
    bool stepView(const QKeyEvent& event);
    bool stepSlider(int key);
    bool highlightByKey(int key);
    bool stepHighlight(const QKeyEvent& event);
    void typed(const QKeyEvent& event);

    std::function<void(int)> chosen_;
    TableState state_;
    int hovered_ = 0;      // the element under the pointer, 0 for none
    int hoveredKind_ = 0;  // the kind under the pointer, 0 for none
    int pressed_ = 0;      // the element on which the mouse button was pressed, 0 for none
    TypeAhead typeAhead_;
    QElapsedTimer clock_;
    TextFitter fitter_;
    TableAccess access_;
    // Qt children of this window, null until it is first shown.
    ViewStrip* strip_ = nullptr;
    ValueSlider* slider_ = nullptr;
    ScaleBox* scaleBox_ = nullptr;
};

}  // namespace controls::periodic
