#pragma once

#include <QMenu>

namespace controls::dataanalyser {

class Analyser;

/// The menu of the columns on show. It stays open while the reader ticks columns by mouse or keys.
class ColumnMenu : public QMenu {
  public:
    ColumnMenu(Analyser& analyser, QWidget* parent);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void fill();
    void addColumn(std::size_t column);
    void refreshTicks();

    Analyser& analyser_;
};

}  // namespace controls::dataanalyser
