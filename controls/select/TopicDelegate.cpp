#include "controls/select/TopicDelegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>
#include <QToolTip>
#include <QTreeView>
#include <algorithm>

#include "controls/select/Appearance.h"
#include "controls/select/TitleLines.h"
#include "controls/select/TopicModel.h"

namespace controls::select {

namespace {

constexpr int barWidth = 3;
constexpr int markerWidth = 20;
constexpr int topicIndent = 22;
constexpr int entryIndent = 32;
// Always leaves room for the scroll bar, so that titles do not change their lines when it comes or goes.
constexpr int rightMargin = 12;
constexpr int topicPadding = 6;
constexpr int entryPadding = 4;

const TopicModel& modelOf(const QModelIndex& index) { return *static_cast<const TopicModel*>(index.model()); }

int paddingOf(const QModelIndex& index) { return TopicModel::isTopic(index) ? topicPadding : entryPadding; }

QString titleOf(const QModelIndex& index) { return index.data(Qt::DisplayRole).toString(); }

/// The matching parts on a line, as ranges with a background colour.
QList<QTextLayout::FormatRange> foundRanges(const std::vector<Span>& spans, const TitleLine& line) {
    QList<QTextLayout::FormatRange> ranges;
    for (const Span& span : spans) {
        const qsizetype start = std::max(static_cast<qsizetype>(span.start) - line.start, qsizetype{0});
        const qsizetype end =
            std::min(static_cast<qsizetype>(span.start + span.length) - line.start, line.text.size());
        if (start >= end) continue;
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(start);
        range.length = static_cast<int>(end - start);
        range.format.setBackground(appearance::found);
        range.format.setForeground(appearance::text);
        ranges.append(range);
    }
    return ranges;
}

void paintLine(QPainter& painter, const TitleLine& line, const std::vector<Span>& spans, const QPoint& at) {
    QTextLayout layout(line.text, painter.font());
    layout.setFormats(foundRanges(spans, line));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    layout.draw(&painter, at);
}

}  // namespace

TopicDelegate::TopicDelegate(QTreeView* view)
    : QStyledItemDelegate(view),
      view_(*view),
      accent_(appearance::accent),
      regular_(appearance::font()),
      bold_(appearance::font(QFont::Bold)) {}

int TopicDelegate::TitleFont::widthOf(const QString& title) {
    auto found = widths.constFind(title);
    if (found == widths.constEnd()) found = widths.insert(title, metrics.horizontalAdvance(title));
    return *found;
}

bool TopicDelegate::onMarker(const QModelIndex& index, const QPoint& point) const {
    return index.isValid() && modelOf(index).hasChildren(index) && point.x() < markerWidth;
}

TopicDelegate::TitleFont& TopicDelegate::fontOf(const QModelIndex& index) const {
    return modelOf(index).mark(index) == TopicModel::Mark::none ? regular_ : bold_;
}

QRect TopicDelegate::titleRect(const QModelIndex& index, const QRect& row) const {
    const int indent = TopicModel::isTopic(index) ? topicIndent : entryIndent;
    const int padding = paddingOf(index);
    return {indent, row.top() + padding, std::max(view_.width() - indent - rightMargin, 1),
            row.height() - 2 * padding};
}

QSize TopicDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    TitleFont& font = fontOf(index);
    const int lines = font.widthOf(titleOf(index)) <= titleRect(index, {}).width() ? 1 : 2;
    return {1, lines * font.lineHeight() + 2 * paddingOf(index)};
}

void TopicDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintBackground(*painter, option, index);
    if (modelOf(index).hasChildren(index)) paintMarker(*painter, option.rect, view_.isExpanded(index));
    paintTitle(*painter, option.rect, index);
    painter->restore();
}

void TopicDelegate::paintBackground(QPainter& painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const TopicModel::Mark mark = modelOf(index).mark(index);
    // While the reader types, the line that Enter would open looks like a line under the pointer.
    const bool pointed = option.state.testFlag(QStyle::State_MouseOver) || index == view_.currentIndex();
    const QColor background = mark == TopicModel::Mark::shown ? appearance::selected
                              : pointed                       ? appearance::hover
                                                              : appearance::paper;
    painter.fillRect(option.rect, background);
    if (mark == TopicModel::Mark::shown) {
        painter.fillRect(QRect(option.rect.topLeft(), QSize(barWidth, option.rect.height())), accent_);
    }
    if (index == view_.currentIndex() && view_.hasFocus()) {
        painter.setPen(QPen(appearance::accent, 1));
        painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void TopicDelegate::paintMarker(QPainter& painter, const QRect& row, bool opened) const {
    painter.save();
    painter.translate(12.5, row.top() + topicPadding + regular_.lineHeight() / 2.0);
    if (opened) painter.rotate(90);
    QPainterPath path;
    path.moveTo(-2, -4);
    path.lineTo(2, 0);
    path.lineTo(-2, 4);
    painter.setPen(QPen(appearance::accent, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.restore();
}

void TopicDelegate::paintTitle(QPainter& painter, const QRect& row, const QModelIndex& index) const {
    const TitleFont& font = fontOf(index);
    const QRect rect = titleRect(index, row);
    const TitleLines title = breakTitle(titleOf(index), font.font, rect.width());
    const std::vector<Span> spans = modelOf(index).spans(index);
    painter.setFont(font.font);
    painter.setPen(font.font.bold()             ? appearance::deep
                   : TopicModel::isTopic(index) ? appearance::text
                                                : appearance::entryText);
    int y = rect.top();
    for (const TitleLine& line : title.lines) {
        paintLine(painter, line, spans, {rect.left(), y});
        y += font.lineHeight();
    }
}

bool TopicDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                              const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
    const QString title = titleOf(index);
    const bool elided = breakTitle(title, fontOf(index).font, titleRect(index, option.rect).width()).elided;
    // A tool tip breaks its text into lines only when that is HTML.
    const QString tip = elided ? QStringLiteral("<p>%1</p>").arg(title.toHtmlEscaped()) : QString();
    QToolTip::showText(event->globalPos(), tip, view);
    return true;
}

}  // namespace controls::select
