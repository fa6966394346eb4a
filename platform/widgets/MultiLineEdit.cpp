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

/// The distance of the text from the left and right border.
constexpr int sideMargin = 4;
/// The height of a line is that of its letters plus this.
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
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    // A CR that ends no line becomes a blank, so that the words around it stay apart.
    lines.replace(u'\r', u' ');
    setPlainText(lines);
    setLineHeights();
}

int MultiLineEdit::lineCount() {
    wrapToWidth();
    // Asking for the size makes the document lay itself out.
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
    // While the widget is hidden, its viewport may not have the new size yet.
    setLineWrapColumnOrWidth(width() - 2 * frameWidth() - barWidth);
}

void MultiLineEdit::setLineHeights() {
    QTextFrameFormat margins = document()->rootFrame()->frameFormat();
    margins.setLeftMargin(sideMargin);
    margins.setRightMargin(sideMargin);
    // The letters are at the lower edge of their line. Half of the gap is to be below the last line.
    margins.setTopMargin(-lineGap / 2.0);
    document()->rootFrame()->setFrameFormat(margins);
    QTextBlockFormat line;
    line.setLineHeight(fontInfo().pixelSize() + lineGap, QTextBlockFormat::FixedHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(line);
}

}  // namespace platform
