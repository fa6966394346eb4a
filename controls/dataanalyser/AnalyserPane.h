#pragma once

#include <QWidget>
#include <set>

#include "controls/dataanalyser/look/GraphParts.h"
#include "controls/dataanalyser/model/Analyser.h"

class QLabel;
class QStackedWidget;

namespace controls::dataanalyser {

class DataStrip;
class GraphStrip;
class MessageLine;
class TableView;

/// The analyser on the screen: strips with the choices, and the table or the graph below them. Its contents
/// are made when it is first shown, because a program creates it long before, and the graph when it is first
/// needed.
class AnalyserPane : public QWidget {
  public:
    AnalyserPane(Analyser& analyser, GraphPartsSource source, QWidget* parent);
    ~AnalyserPane() override;

    /// Puts the graph on the clipboard as a picture; false when no graph is shown.
    bool copyGraph();
    /// The functions that draw graphs, loaded with the first call; null when they cannot be loaded.
    const GraphParts* graphs();

    /// Shows the analyser's state at once. Without this call that happens a moment after a change.
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
    QString extremesNote() const;
    QString leftOutNote() const;
    void refreshMessage();
    QSize graphSize() const;

    Analyser& analyser_;
    GraphPartsSource graphsSource_;
    const GraphParts* graphs_ = nullptr;
    std::set<Change> changes_;  // since the last refreshNow
    bool scheduled_ = false;
    DataStrip* dataStrip_ = nullptr;
    GraphStrip* graphStrip_ = nullptr;
    QStackedWidget* views_ = nullptr;
    TableView* table_ = nullptr;
    GraphPane* graph_ = nullptr;
    QLabel* noGraph_ = nullptr;
    MessageLine* message_ = nullptr;
};

}  // namespace controls::dataanalyser
