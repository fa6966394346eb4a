#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <functional>

#include "controls/common/TypeAhead.h"
#include "controls/periodic/CellPainter.h"
#include "controls/periodic/ElementGrid.h"
#include "controls/periodic/TableLayout.h"
#include "controls/periodic/TableState.h"

namespace controls::periodic {

/// The periodic table on the screen.
class PeriodicWidget : public QWidget {
  public:
    /// `chosen` is called with the atomic number when the reader clicks an element or presses Enter on it.
    PeriodicWidget(std::function<void(int number)> chosen, QWidget* parent);

    const TableState& state() const { return state_; }
    void setState(const TableState& state);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    TableLayout layoutNow() const { return TableLayout(size()); }
    void select(int number);
    void hover(int number);
    void highlight(Family family);
    bool step(int key);
    void typed(QKeyEvent& event);
    void paintElements(QPainter& painter, const TableLayout& layout) const;
    void paintPlaceholders(QPainter& painter, const TableLayout& layout) const;
    void paintLabels(QPainter& painter, const TableLayout& layout) const;
    void paintLegend(QPainter& painter, const TableLayout& layout) const;

    std::function<void(int)> chosen_;
    TableState state_;
    int hovered_ = 0;
    int pressed_ = 0;
    TypeAhead typeAhead_;
    QElapsedTimer clock_;
};

}  // namespace controls::periodic
