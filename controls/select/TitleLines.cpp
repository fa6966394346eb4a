#include "controls/select/TitleLines.h"

#include <QFontMetrics>
#include <QTextLayout>
#include <algorithm>

namespace controls::select {

namespace {

qsizetype lengthOfFirstLine(const QString& title, const QFont& font, int width) {
    QTextLayout layout(title, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width);
    layout.endLayout();
    return line.textLength();
}

}  // namespace

TitleLines breakTitle(const QString& title, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    if (metrics.horizontalAdvance(title) <= width) return {{{title, 0}}, false};
    const qsizetype first = lengthOfFirstLine(title, font, std::max(width, 1));
    const QString rest = title.mid(first);
    const QString second = metrics.elidedText(rest, Qt::ElideRight, width);
    return {{{title.left(first).trimmed(), 0}, {second, first}}, second != rest};
}

}  // namespace controls::select
