#pragma once

#include <QWidget>
#include <memory>
#include <set>

#include "controls/dataanalyser/look/GraphParts.h"
#include "controls/dataanalyser/model/Analyser.h"

class QLabel;
class QStackedWidget;

namespace controls::dataanalyser {

class GraphStrip;
class MessageLine;
class TableStrip;
class TableView;

/// The analyser on the screen: strips with the choices, and the table or the graph under them. What it shows
/// is made when it is first shown, for programs create it long before, and the graph when that is first asked
/// for.
class AnalyserPane : public QWidget {
  public:
    AnalyserPane(Analyser& analyser, GraphPartsSource source, QWidget* parent);
    ~AnalyserPane() override;

    /// Put the rows on the clipboard as text and as an HTML table; without a selected row the second changes
    /// nothing.
    void copyAll() const;
    void copySelected() const;
    /// Puts the graph on the clipboard as a picture; false when there is none on show.
    bool copyGraph();
    /// What draws graphs, got when it is first asked for; null when it is not there.
    const GraphParts* graphs();
    /// The size in which a graph looks as on the screen.
    QSize graphSize() const;

    /// Brings everything on show into line with the analyser, which otherwise happens a moment after a
    /// change.
    void refreshNow();

    QSize sizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void build();
    QWidget& shownGraph();
    void noteChange(Change change);
    void refreshTable();
    void refreshView();
    QString leftOutNote() const;
    void refreshMessage();
    void copyRows(std::vector<int> rows) const;

    Analyser& analyser_;
    GraphPartsSource graphsSource_;
    const GraphParts* graphs_ = nullptr;
    std::set<Change> changes_;  // since the last refreshing
    bool scheduled_ = false;
    TableStrip* strip_ = nullptr;
    GraphStrip* graphStrip_ = nullptr;
    QStackedWidget* views_ = nullptr;
    TableView* table_ = nullptr;
    GraphPane* graph_ = nullptr;
    QLabel* noGraph_ = nullptr;
    MessageLine* message_ = nullptr;
};

}  // namespace controls::dataanalyser
