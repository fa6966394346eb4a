#pragma once

#include <QElapsedTimer>
#include <QTableView>
#include <functional>
#include <vector>

#include "controls/common/TypeAhead.h"
#include "controls/dataanalyser/ColumnWidths.h"
#include "controls/dataanalyser/ElementModel.h"

namespace controls::dataanalyser {

/// The table on the screen. Elements are named by atomic number.
class ElementView : public QTableView {
  public:
    /// `copy` is called when the reader asks to copy the selected rows by key.
    ElementView(std::function<void()> copy, QWidget* parent);

    ElementModel& elements() { return *elements_; }
    const ElementModel& elements() const { return *elements_; }

    /// Lists the rows anew; selection and cursor stay with their elements.
    void setOrder(const RowOrder& order);

    /// The selected elements in the order of their rows.
    std::vector<int> selected() const;
    /// Selects just these; those not listed are passed over.
    void select(const std::vector<int>& numbers);

    /// The element under the cursor, 0 when there is none.
    int cursor() const;
    /// Moves the cursor and nothing else; any other number takes it away.
    void setCursorTo(int number);

    /// The element in the top row, 0 when no row is listed.
    int top() const;
    void scrollTopTo(int number);

    const ColumnWidths& widths() const { return widths_; }
    void setWidths(const ColumnWidths& widths);

    void keyboardSearch(const QString& search) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void setUpHeadings();
    int numberAt(int row) const;
    void showWidths();
    void setWidth(int section, int pixels);
    void sortBy(int section);

    std::function<void()> copy_;
    ElementModel* elements_;
    ColumnWidths widths_;
    bool showingWidths_ = false;
    TypeAhead typeAhead_;
    QElapsedTimer clock_;
};

}  // namespace controls::dataanalyser
