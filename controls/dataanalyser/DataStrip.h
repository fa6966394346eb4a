#pragma once

#include <QWidget>

class QButtonGroup;
class QLabel;
class QPushButton;

namespace controls::dataanalyser {

class Analyser;
class ChoiceBox;
class RangeMenu;

/// The upper strip. It chooses the data set, its rows and columns, the unit, and table or graph.
class DataStrip : public QWidget {
  public:
    DataStrip(Analyser& analyser, QWidget* parent);

    /// Shows the choices of the analyser.
    void refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeChoices();
    void layOut();
    void connectChoices();
    void refreshCount();

    Analyser& analyser_;
    QLabel* title_;
    ChoiceBox* sets_;
    ChoiceBox* categories_;
    QLabel* count_;
    QPushButton* columns_;
    QPushButton* range_;
    RangeMenu* rangeMenu_;
    QButtonGroup* units_;
    QButtonGroup* views_;
};

}  // namespace controls::dataanalyser
