#pragma once

#include <QWidget>
#include <functional>

class QBoxLayout;
class QButtonGroup;
class QLabel;
class QPushButton;

namespace controls::dataanalyser {

class Analyser;
class ChoiceBox;
struct GraphPlan;

/// The strip above a graph. It chooses the kind of graph, the columns and the axes.
class GraphStrip : public QWidget {
  public:
    /// `zoom` is called with the factor by which the part that is shown becomes wider, or with 0 for the
    /// whole graph.
    GraphStrip(Analyser& analyser, std::function<void(double factor)> zoom, QWidget* parent);

    /// Shows the choices of the analyser.
    void refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeChoices();
    void layOut();
    void connectChoices();
    void change(const std::function<void(GraphPlan&)>& edit);

    Analyser& analyser_;
    std::function<void(double)> zoom_;
    QButtonGroup* kinds_;
    QLabel* xName_;
    ChoiceBox* xs_;
    QPushButton* logX_;
    QLabel* yName_;
    ChoiceBox* ys_;
    QPushButton* logY_;
    QPushButton* fit_;
    QPushButton* names_;
    QPushButton* closer_;
    QPushButton* farther_;
    QPushButton* whole_;
    QBoxLayout* halves_ = nullptr;
};

}  // namespace controls::dataanalyser
