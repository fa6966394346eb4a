#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <cstdint>

#include "controls/common/Appearance.h"

/// The look of the browse selection: that of all components, and what it adds.
namespace controls::select::appearance {

using controls::appearance::accent;
using controls::appearance::deep;
using controls::appearance::muted;
using controls::appearance::paper;
using controls::appearance::selected;
using controls::appearance::text;

inline constexpr QColor entryText{0x33, 0x47, 0x5B};
inline constexpr QColor hover{0xE8, 0xF1, 0xF6};
inline constexpr QColor found{0xFF, 0xE4, 0x9C};

/// The accent colour of a section, the same as on its pages. For an unknown code it is that of all
/// components.
QColor sectionAccent(std::int16_t code);

/// The font of the list and the field.
QFont font(QFont::Weight weight = QFont::Normal);

/// The colours for what Qt draws by itself in the pane.
QPalette palette();
/// The style rules for the widgets of the pane, by their object names.
QString styleSheet();

}  // namespace controls::select::appearance
