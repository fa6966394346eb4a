#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <string>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/text/CodePage1253.h"

/// Conversions between the program's types and Qt's. Text on the program's side is in code page 1253.
namespace platform {

inline QPoint toQt(CPoint p) { return {p.x, p.y}; }
inline CPoint fromQt(QPoint p) { return {p.x(), p.y()}; }
inline QRect toQt(const CRect& r) { return {r.left, r.top, r.Width(), r.Height()}; }
inline CRect fromQt(const QRect& r) { return CRect::at(r.x(), r.y(), r.width(), r.height()); }

inline QColor toQt(COLORREF colour) {
    return QColor::fromRgb(static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8) & 0xFFU),
                           static_cast<int>((colour >> 16) & 0xFFU));
}

inline QString toQt(std::string_view cp1253) { return QString::fromStdString(toUtf8(cp1253)); }
inline std::string fromQt(const QString& text) { return fromUtf8(text.toStdString()); }

}  // namespace platform
