#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <optional>

#include "controls/elements/Element.h"

/// Colours and fonts of the components. They do not depend on the theme of the desktop.
namespace controls::appearance {

inline constexpr QColor paper{0xFF, 0xFF, 0xFF};
inline constexpr QColor ground{0xF3, 0xF6, 0xF9};
inline constexpr QColor text{0x1C, 0x27, 0x33};
inline constexpr QColor muted{0x52, 0x60, 0x70};
inline constexpr QColor line{0xD0, 0xDA, 0xE3};
inline constexpr QColor deep{0x1F, 0x4E, 0x6B};
inline constexpr QColor accent{0x3A, 0x7A, 0xA0};
inline constexpr QColor warm{0xE0, 0xA0, 0x30};
inline constexpr QColor stripe{0xF1, 0xF6, 0xFA};
inline constexpr QColor selected{0xD3, 0xE5, 0xF0};
inline constexpr QColor frame{0xA9, 0xBF, 0xCD};
inline constexpr QColor disabled{0x9A, 0xA7, 0xB4};
inline constexpr QColor handle{0xB5, 0xC8, 0xD4};

/// A style sheet in which the names of these colours, such as `@deep`, are replaced by the colours.
QString withColors(const char* styleSheet);

/// The two colours of a group of elements or rows. `fill` is light enough for dark text; `edge` is a strong
/// colour of the same hue.
struct GroupColors {
    QColor fill;
    QColor edge;
};
/// The colours of a family of elements, the same in the periodic table and in graphs.
GroupColors familyColors(Family family);

/// The font of the components, with letters of this height in pixels.
QFont font(int pixels, QFont::Weight weight = QFont::Normal);

/// The largest font of at most `pixels` in which the words fit into `width`, if need be with narrowed
/// letters. Nothing when they do not even fit at `minPixels`.
std::optional<QFont> fittingFont(const QString& words, int width, int pixels, int minPixels,
                                 QFont::Weight weight = QFont::Normal);

}  // namespace controls::appearance
