#pragma once

#include <QRadioButton>
#include <array>
#include <functional>

#include "controls/periodic/Lettering.h"
#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

/// One view in the strip. Only the keyboard gives it the focus, so that a click leaves it to the table.
class ViewButton : public QRadioButton {
  public:
    ViewButton(TableView view, Lettering& lettering, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    Lettering& lettering_;
};

/// The strip of views at the top of the table.
class ViewStrip : public QWidget {
  public:
    /// `chosen` is called when the reader chooses a view.
    ViewStrip(Lettering& lettering, const std::function<void(TableView)>& chosen, QWidget* parent);

    /// Shows which view is on.
    void setView(TableView view);
    /// Lays the strip out in one row or two.
    void place(const QRect& area, int rows);

    const QWidget& button(TableView view) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void placeRow(const QRect& area, int first, int end);

    std::array<ViewButton*, viewCount> buttons_{};
};

}  // namespace controls::periodic
