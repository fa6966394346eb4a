#pragma once

#include <QWidget>

class QButtonGroup;
class QLabel;
class QMenu;
class QPushButton;

namespace controls::dataanalyser {

class Analyser;
class ChoiceBox;

/// The upper strip: which data set, which rows and columns, which unit, table or graph.
class TableStrip : public QWidget {
  public:
    TableStrip(Analyser& analyser, QWidget* parent);

    /// Brings the choices into line with the analyser.
    void refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeChoices();
    void layOut();
    void connectChoices();
    void fillColumnMenu();
    void refreshCount();

    Analyser& analyser_;
    QLabel* title_;
    ChoiceBox* sets_;
    ChoiceBox* categories_;
    QLabel* count_;
    QPushButton* columns_;
    QMenu* columnMenu_;
    QButtonGroup* units_;
    QButtonGroup* views_;
};

}  // namespace controls::dataanalyser
