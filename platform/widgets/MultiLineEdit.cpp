#include "platform/widgets/MultiLineEdit.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFontInfo>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

namespace platform {

namespace {

/// Between the text and the left and right border.
constexpr int sideMargin = 4;
/// What a line is higher than its letters are.
constexpr int lineGap = 4;

}  // namespace

MultiLineEdit::MultiLineEdit(QWidget& parent) : QTextEdit(&parent) {
    setAcceptRichText(false);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    document()->setDocumentMargin(0);
}

QString MultiLineEdit::content() const {
    return toPlainText().replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

void MultiLineEdit::setContent(const QString& text) {
    setPlainText(QString(text).remove(u'\r'));
    setLineHeights();
}

int MultiLineEdit::lineCount() {
    wrapToWidth();
    // Asking for the size has the document laid out.
    document()->documentLayout()->documentSize();
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        lines += std::max(1, block.layout()->lineCount());
    }
    return lines;
}

bool MultiLineEdit::event(QEvent* event) {
    if (event->type() == QEvent::FontChange) setLineHeights();
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize) wrapToWidth();
    return QTextEdit::event(event);
}

void MultiLineEdit::showScrollBar(bool show) {
    setVerticalScrollBarPolicy(show ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    wrapToWidth();
}

void MultiLineEdit::wrapToWidth() {
    const bool hasBar = verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn;
    const int barWidth = hasBar ? verticalScrollBar()->sizeHint().width() : 0;
    // A hidden widget has its new size before its inside has.
    setLineWrapColumnOrWidth(width() - 2 * frameWidth() - barWidth);
}

void MultiLineEdit::setLineHeights() {
    QTextFrameFormat margins = document()->rootFrame()->frameFormat();
    margins.setLeftMargin(sideMargin);
    margins.setRightMargin(sideMargin);
    // The letters stand at the lower edge of their line; half of the gap goes below the last one.
    margins.setTopMargin(-lineGap / 2.0);
    document()->rootFrame()->setFrameFormat(margins);
    QTextBlockFormat line;
    line.setLineHeight(fontInfo().pixelSize() + lineGap, QTextBlockFormat::FixedHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(line);
}

}  // namespace platform
