#pragma once

#include <Qt>
#include <optional>
#include <string_view>

namespace drive {

/// A key and the modifiers held with it.
struct KeyStroke {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
};

/// Reads a key's name, such as `Enter`, `Delete`, `F6`, `a` or `Ctrl+Shift+C`, in any letter case. Nothing
/// when no key has that name.
std::optional<KeyStroke> keyStrokeOf(std::string_view name);

/// Reads modifiers that are held while the mouse is used, such as `Ctrl` or `Ctrl+Shift`, in any letter case.
/// Nothing when a name is no modifier's.
std::optional<Qt::KeyboardModifiers> modifiersOf(std::string_view names);

}  // namespace drive
