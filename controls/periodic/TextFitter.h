#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QString>
#include <optional>

namespace controls::periodic {

/// Draws one-line texts in the largest font that fits. It remembers these fonts, because finding them takes
/// longer than drawing. Text between two '^' is raised.
class TextFitter {
  public:
    /// The size of the smallest letters that can be read, in pixels.
    static constexpr int minPixels = 8;

    /// The largest font of at most `pixels` in which a text fits into a width. Nothing when the smallest is
    /// too wide.
    std::optional<QFont> font(const QString& words, int width, int pixels,
                              QFont::Weight weight = QFont::Normal);

    /// Draws a text in the pen's colour; draws nothing when it does not fit.
    void draw(QPainter& painter, const QRect& area, const QString& words, int pixels, Qt::Alignment alignment,
              QFont::Weight weight = QFont::Normal);

    /// Draws a text in a given font.
    static void draw(QPainter& painter, const QRect& area, const QString& words, const QFont& font,
                     Qt::Alignment alignment);

    /// The width of a text in pixels.
    static int widthOf(const QString& words, const QFont& font);

    /// The text without the '^' marks.
    static QString plain(QString words) { return words.remove(QLatin1Char('^')); }

  private:
    struct Wanted {
        QString words;
        int width;
        int pixels;
        int weight;
        friend bool operator==(const Wanted&, const Wanted&) = default;
        friend std::size_t qHash(const Wanted& wanted, std::size_t seed = 0) {
            return qHashMulti(seed, wanted.words, wanted.width, wanted.pixels, wanted.weight);
        }
    };

    QHash<Wanted, std::optional<QFont>> fonts_;
};

}  // namespace controls::periodic
