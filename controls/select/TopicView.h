#pragma once

#include <QTreeView>

namespace controls::select {

class TopicDelegate;
class TopicModel;

/// The list of topics and entries, with its mouse and keyboard handling.
class TopicView : public QTreeView {
    Q_OBJECT

  public:
    TopicView(TopicModel& model, QWidget* parent);

    void setAccent(const QColor& accent);

    /// Measures and draws all lines anew. Needed when other titles have become bold.
    void remeasure();

    /// Makes a line the current one and scrolls to it. Of an opened topic, as many entries as fit become
    /// visible too.
    void reveal(const QModelIndex& index);

  signals:
    /// Emitted when the reader chooses a line.
    void chosen(const QModelIndex& index);
    /// Emitted when a text is typed, which belongs into the field.
    void typed(const QString& text);
    /// Emitted when Backspace is pressed.
    void erased();
    /// Emitted when the Up key is pressed on the first line.
    void leftAtTop();
    /// Emitted when Esc is pressed.
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
