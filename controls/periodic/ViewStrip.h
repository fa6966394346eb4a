#pragma once

#include <QRadioButton>
#include <array>
#include <functional>

#include "controls/periodic/TextFitter.h"
#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

/// The button of one view in the strip. A click does not give it the focus, so that the table keeps the
/// keyboard.
class ViewButton : public QRadioButton {
  public:
    ViewButton(TableView view, TextFitter& fitter, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    TextFitter& fitter_;
};

/// The strip of views at the top of the table.
class ViewStrip : public QWidget {
  public:
    /// `chosen` is called when the reader chooses a view.
    ViewStrip(TextFitter& fitter, const std::function<void(TableView)>& chosen, QWidget* parent);

    /// Marks the view that the table shows.
    void setView(TableView view);
    /// Lays the strip out in one row or in two.
    void place(const QRect& area, int rows);

    const QWidget& button(TableView view) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Places the buttons with these places in the order of the strip.
    void placeRow(const QRect& area, std::size_t first, std::size_t end);

    std::array<ViewButton*, viewCount> buttons_{};  // by the code of the view
};

}  // namespace controls::periodic
