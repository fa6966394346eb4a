#pragma once

#include <QMenu>

namespace controls::dataanalyser {

class Analyser;
class ChoiceBox;

/// The menu for the first and the last row that is listed.
class RangeMenu : public QMenu {
  public:
    RangeMenu(Analyser& analyser, QWidget* parent);

    /// What the button that opens it says: the range, or that there is none.
    QString caption() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void fill();
    void choose();

    Analyser& analyser_;
    ChoiceBox* first_;
    ChoiceBox* last_;
};

}  // namespace controls::dataanalyser
