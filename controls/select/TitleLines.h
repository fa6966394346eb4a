#pragma once

#include <QFont>
#include <QString>
#include <vector>

namespace controls::select {

/// The part of a title that stands on one line.
struct TitleLine {
    QString text;
    /// The position of the part in the title.
    qsizetype start = 0;
};

/// A title broken into at most two lines.
struct TitleLines {
    std::vector<TitleLine> lines;
    /// Whether the second line ends in an ellipsis.
    bool elided = false;
};

/// Breaks the title between words, and inside a word that is longer than the width in pixels.
TitleLines breakTitle(const QString& title, const QFont& font, int width);

}  // namespace controls::select
