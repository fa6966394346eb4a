#pragma once

#include <QTreeWidget>

#include "platform/base/ControlMessages.h"

namespace platform {

/// A tree view with lines and buttons, also at the top level.
class TreeWidget : public QTreeWidget {
  public:
    explicit TreeWidget(QWidget& parent);

    /// Inserts an item below another, or at the top level for null: at its place in the alphabetical order,
    /// or as the last.
    QTreeWidgetItem* insert(const QString& text, QTreeWidgetItem* parent, bool inOrder);

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void tell(int code, QTreeWidgetItem* item);
    void enter(QKeyEvent& event);
    void drawLines(QPainter& painter, const QRect& rect, const QModelIndex& index) const;

    bool dragTold_ = false;
};

}  // namespace platform
