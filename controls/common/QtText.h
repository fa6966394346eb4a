#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/text/CodePage1253.h"

namespace controls {

/// Converts a text in code page 1253 for Qt.
inline QString toQt(std::string_view cp1253) { return QString::fromStdString(platform::toUtf8(cp1253)); }

/// Converts a text to code page 1253. A character that the code page lacks becomes '?'.
inline std::string fromQt(const QString& text) {
    return platform::fromUtf8(text.normalized(QString::NormalizationForm_C).toStdString());
}

/// Replaces the hyphens of negative numbers by a minus, which the code page lacks.
inline QString withMinus(QString numbers) { return numbers.replace(u'-', QChar(0x2212)); }

}  // namespace controls
