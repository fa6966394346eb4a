#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/text/CodePage1253.h"

namespace controls {

/// A text in code page 1253 for showing.
inline QString toQt(std::string_view cp1253) { return QString::fromStdString(platform::toUtf8(cp1253)); }

/// A typed text in code page 1253; a character outside it becomes '?'.
inline std::string fromQt(const QString& text) {
    return platform::fromUtf8(text.normalized(QString::NormalizationForm_C).toStdString());
}

/// Numbers for showing: with a minus, which the code page lacks, for each hyphen.
inline QString withMinus(QString numbers) { return numbers.replace(u'-', QChar(0x2212)); }

}  // namespace controls
