#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QHash>
#include <QStyledItemDelegate>

class QTreeView;

namespace controls::select {

/// Draws the lines of the list: marker, title on one or two lines with the found parts, and the mark of the
/// place on show.
class TopicDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// Serves one view, which shows a TopicModel.
    explicit TopicDelegate(QTreeView* view);

    /// The colour of the bar beside the place on show.
    void setAccent(const QColor& accent) { accent_ = accent; }

    /// Whether a point of the view lies on the marker that opens and closes the topic.
    bool onMarker(const QModelIndex& index, const QPoint& point) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// A title that does not fit is told in full.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    /// A font and what measuring with it has given.
    struct TitleFont {
        explicit TitleFont(const QFont& given) : font(given), metrics(given) {}
        int lineHeight() const { return metrics.lineSpacing() + 1; }
        int widthOf(const QString& title);

        QFont font;
        QFontMetrics metrics;
        QHash<QString, int> widths;
    };

    TitleFont& fontOf(const QModelIndex& index) const;
    QRect titleRect(const QModelIndex& index, const QRect& row) const;
    void paintBackground(QPainter& painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const;
    void paintMarker(QPainter& painter, const QRect& row, bool opened) const;
    void paintTitle(QPainter& painter, const QRect& row, const QModelIndex& index) const;

    QTreeView& view_;
    QColor accent_;
    // Long lists are measured at every change of the width.
    mutable TitleFont regular_;
    mutable TitleFont bold_;
};

}  // namespace controls::select
