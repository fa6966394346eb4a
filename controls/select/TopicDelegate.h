#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QHash>
#include <QStyledItemDelegate>

class QTreeView;

namespace controls::select {

/// Draws the lines of the list: the marker that opens a topic, the title on one or two lines with the
/// matching parts coloured, and the bar beside the place that is shown.
class TopicDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// The view must show a TopicModel.
    explicit TopicDelegate(QTreeView* view);

    /// Sets the colour of the bar beside the place that is shown.
    void setAccent(const QColor& accent) { accent_ = accent; }

    /// Whether a point of the view lies on the marker that opens and closes the topic.
    bool onMarker(const QModelIndex& index, const QPoint& point) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Shows a title that does not fit as a tool tip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    /// A font, and the widths of titles that have been measured with it.
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
    // A long list is measured again whenever its width changes, so the widths of titles are kept.
    mutable TitleFont regular_;
    mutable TitleFont bold_;
};

}  // namespace controls::select
