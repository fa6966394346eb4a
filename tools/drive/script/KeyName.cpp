#include "tools/drive/script/KeyName.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "platform/text/CodePage1253.h"
#include "tools/drive/script/Numbers.h"

namespace drive {

namespace {

constexpr std::array<std::pair<std::string_view, Qt::KeyboardModifier>, 3> modifierNames = {{
    {"ctrl", Qt::ControlModifier},
    {"shift", Qt::ShiftModifier},
    {"alt", Qt::AltModifier},
}};

constexpr std::array<std::pair<std::string_view, Qt::Key>, 29> keyNames = {{
    {"enter", Qt::Key_Return},
    {"return", Qt::Key_Return},
    {"esc", Qt::Key_Escape},
    {"escape", Qt::Key_Escape},
    {"del", Qt::Key_Delete},
    {"delete", Qt::Key_Delete},
    {"ins", Qt::Key_Insert},
    {"insert", Qt::Key_Insert},
    {"backspace", Qt::Key_Backspace},
    {"tab", Qt::Key_Tab},
    {"space", Qt::Key_Space},
    {"left", Qt::Key_Left},
    {"right", Qt::Key_Right},
    {"up", Qt::Key_Up},
    {"down", Qt::Key_Down},
    {"home", Qt::Key_Home},
    {"end", Qt::Key_End},
    {"pageup", Qt::Key_PageUp},
    {"pgup", Qt::Key_PageUp},
    {"pagedown", Qt::Key_PageDown},
    {"pgdn", Qt::Key_PageDown},
    {"plus", Qt::Key_Plus},
    {"minus", Qt::Key_Minus},
    {"alt", Qt::Key_Alt},
    {"altgr", Qt::Key_AltGr},
    {"capslock", Qt::Key_CapsLock},
    {"menu", Qt::Key_Menu},
    {"meta", Qt::Key_Meta},
    {"tonos", Qt::Key_Dead_Acute},
}};

template <class Table>
auto lookUp(const Table& table, std::string_view name) {
    const auto row = std::ranges::find(table, name, [](const auto& entry) { return entry.first; });
    return row == table.end() ? std::nullopt : std::optional(row->second);
}

std::optional<Qt::Key> functionKey(std::string_view name) {
    constexpr int last = 24;
    const std::optional<int> n = name.starts_with('f') ? number<int>(name.substr(1)) : std::nullopt;
    if (!n || *n < 1 || *n > last) return std::nullopt;
    return static_cast<Qt::Key>(Qt::Key_F1 + *n - 1);
}

/// The number of a key with a printable ASCII character is that character's code, for letters the capital's.
std::optional<Qt::Key> characterKey(std::string_view name) {
    if (name.size() != 1 || name[0] <= ' ' || name[0] > '~') return std::nullopt;
    const char c = name[0];
    return static_cast<Qt::Key>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
}

std::optional<Qt::Key> keyOf(std::string_view name) {
    if (const auto key = lookUp(keyNames, name)) return key;
    if (const auto key = functionKey(name)) return key;
    return characterKey(name);
}

}  // namespace

std::optional<KeyStroke> keyStrokeOf(std::string_view name) {
    const std::string lowered = platform::toLower(name);
    std::string_view rest = lowered;
    KeyStroke stroke;
    // The plus sign is a key too: it separates only where something follows it.
    for (std::size_t plus = rest.find('+');
         plus != std::string_view::npos && plus > 0 && plus + 1 < rest.size(); plus = rest.find('+')) {
        const auto modifier = lookUp(modifierNames, rest.substr(0, plus));
        if (!modifier) return std::nullopt;
        stroke.modifiers |= *modifier;
        rest.remove_prefix(plus + 1);
    }
    const std::optional<Qt::Key> key = keyOf(rest);
    if (!key) return std::nullopt;
    stroke.key = *key;
    return stroke;
}

std::optional<Qt::KeyboardModifiers> modifiersOf(std::string_view names) {
    const std::string lowered = platform::toLower(names);
    Qt::KeyboardModifiers modifiers;
    for (std::string_view rest = lowered;;) {
        const std::size_t plus = rest.find('+');
        const auto modifier = lookUp(modifierNames, rest.substr(0, plus));
        if (!modifier) return std::nullopt;
        modifiers |= *modifier;
        if (plus == std::string_view::npos) return modifiers;
        rest.remove_prefix(plus + 1);
    }
}

}  // namespace drive
