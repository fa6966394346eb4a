#pragma once

#include <QTreeView>

namespace controls::select {

class TopicDelegate;
class TopicModel;

/// The list of topics and entries, driven by mouse and keyboard.
class TopicView : public QTreeView {
    Q_OBJECT

  public:
    TopicView(TopicModel& model, QWidget* parent);

    void setAccent(const QColor& accent);

    /// Has all lines measured and drawn anew, because other titles may be bold now.
    void remeasure();

    /// Makes a line the current one and scrolls to it; an opened topic brings its entries along as far as
    /// they fit.
    void reveal(const QModelIndex& index);

  signals:
    /// The reader wants to see the line's page.
    void chosen(const QModelIndex& index);
    /// A text was typed that belongs into the field.
    void typed(const QString& text);
    /// Backspace was pressed.
    void erased();
    /// The selection should go up, out of the list.
    void leftAtTop();
    /// Esc was pressed.
    void escaped();

  protected:
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    bool handleMove(int key);
    void openOrEnter();
    void closeOrLeave();
    bool atTop() const;

    TopicDelegate* delegate_;
    bool markerPressed_ = false;
};

}  // namespace controls::select
