#include "controls/periodic/TextFitter.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>

#include "controls/common/Appearance.h"

namespace controls::periodic {

namespace {

constexpr qsizetype maxRemembered = 4000;
constexpr int raisedPercent = 75;
constexpr int liftPercent = 36;

QFont raised(QFont font) {
    font.setPixelSize(std::max(font.pixelSize() * raisedPercent / 100, 6));
    return font;
}

/// Calls `each` with every part of a text, and with true when the part is raised.
template <class Each>
void forParts(const QString& words, const Each& each) {
    bool raise = false;
    for (const QString& part : words.split(QLatin1Char('^'))) {
        if (!part.isEmpty()) each(part, raise);
        raise = !raise;
    }
}

int leftEdge(const QRect& area, int width, Qt::Alignment alignment) {
    if (alignment.testFlag(Qt::AlignRight)) return area.right() + 1 - width;
    return alignment.testFlag(Qt::AlignHCenter) ? area.left() + (area.width() - width) / 2 : area.left();
}

int baseline(const QRect& area, const QFontMetrics& metrics, Qt::Alignment alignment) {
    if (alignment.testFlag(Qt::AlignTop)) return area.top() + metrics.ascent();
    return area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent();
}

}  // namespace

std::optional<QFont> TextFitter::font(const QString& words, int width, int pixels, QFont::Weight weight) {
    const Wanted wanted{words, width, pixels, weight};
    if (const auto known = fonts_.constFind(wanted); known != fonts_.cend()) return *known;
    // Every size of the window adds fonts.
    if (fonts_.size() >= maxRemembered) fonts_.clear();
    return *fonts_.insert(
        wanted, appearance::fittingFont(plain(words), width, std::max(pixels, minPixels), minPixels, weight));
}

void TextFitter::draw(QPainter& painter, const QRect& area, const QString& words, int pixels,
                      Qt::Alignment alignment, QFont::Weight weight) {
    if (const auto fitting = font(words, area.width(), pixels, weight)) {
        draw(painter, area, words, *fitting, alignment);
    }
}

void TextFitter::draw(QPainter& painter, const QRect& area, const QString& words, const QFont& font,
                      Qt::Alignment alignment) {
    painter.setFont(font);
    const QFontMetrics metrics = painter.fontMetrics();
    int x = leftEdge(area, widthOf(words, font), alignment);
    const int y = baseline(area, metrics, alignment);
    forParts(words, [&](const QString& part, bool raise) {
        const QFont partFont = raise ? raised(font) : font;
        painter.setFont(partFont);
        painter.drawText(x, raise ? y - metrics.ascent() * liftPercent / 100 : y, part);
        x += QFontMetrics(partFont).horizontalAdvance(part);
    });
}

int TextFitter::widthOf(const QString& words, const QFont& font) {
    int width = 0;
    forParts(words, [&](const QString& part, bool raise) {
        width += QFontMetrics(raise ? raised(font) : font).horizontalAdvance(part);
    });
    return width;
}

}  // namespace controls::periodic
