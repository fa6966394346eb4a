#pragma once

#include <QElapsedTimer>
#include <QTableView>
#include <functional>
#include <vector>

#include "controls/dataanalyser/model/Analyser.h"
#include "controls/elements/TypeAhead.h"

namespace controls::dataanalyser {

class TableModel;

/// The table on the screen. It passes what the reader does on to the analyser. When the analyser has changed,
/// the refresh functions bring the table up to date.
class TableView : public QTableView {
  public:
    /// `copy` is called when the reader presses the keys for copying.
    TableView(Analyser& analyser, std::function<void()> copy, QWidget* parent);

    void refreshRows();
    void refreshUnit();
    void refreshColumns();
    void refreshSelection();
    void refreshTop();

    void keyboardSearch(const QString& search) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    void setUpHeadings();
    void measureColumns();
    void setWidth(int section, int pixels);
    void sortBy(int section);
    void sort(int section, bool descending);
    bool sortByKey(const QKeyEvent& event);
    std::vector<std::int16_t> selectedIds() const;
    int rowOfId(std::int32_t id) const;

    Analyser& analyser_;
    std::function<void()> copy_;
    TableModel* rows_;
    std::vector<int> needed_;  // the minimal widths of the columns
    int cursorColumn_ = 0;
    bool refreshing_ = false;
    TypeAhead typeAhead_;
    QElapsedTimer clock_;
};

}  // namespace controls::dataanalyser
