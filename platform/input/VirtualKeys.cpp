#include "platform/input/VirtualKeys.h"

#include <QtCore/qnamespace.h>
#include <algorithm>
#include <array>
#include <string_view>

namespace platform {

namespace {

struct Key {
    int qt;
    UINT number;
};

constexpr std::array named = {
    Key{Qt::Key_Backspace, 0x08}, Key{Qt::Key_Tab, 0x09},    Key{Qt::Key_Backtab, 0x09},
    Key{Qt::Key_Return, 0x0D},    Key{Qt::Key_Enter, 0x0D},  Key{Qt::Key_Shift, 0x10},
    Key{Qt::Key_Control, 0x11},   Key{Qt::Key_Alt, 0x12},    Key{Qt::Key_Escape, 0x1B},
    Key{Qt::Key_Space, 0x20},     Key{Qt::Key_PageUp, 0x21}, Key{Qt::Key_PageDown, 0x22},
    Key{Qt::Key_End, 0x23},       Key{Qt::Key_Home, 0x24},   Key{Qt::Key_Left, 0x25},
    Key{Qt::Key_Up, 0x26},        Key{Qt::Key_Right, 0x27},  Key{Qt::Key_Down, 0x28},
    Key{Qt::Key_Insert, 0x2D},    Key{Qt::Key_Delete, 0x2E},
};

/// The letters of the Greek keyboard from the key A to the key Z; Q has none.
constexpr std::u16string_view greekLetters = u"ΑΒΨΔΕΦΓΗΙΞΚΛΜΝΟΠ;ΡΣΤΘΩςΧΥΖ";
static_assert(greekLetters.size() == 26);

constexpr UINT firstFunctionKey = 0x70;
/// The number for characters that are on none of these keys.
constexpr UINT anyCharacter = 0xE7;
constexpr int firstKeyWithoutCharacter = 0x01000000;
/// The number for keys that have none here.
constexpr UINT anyOtherKey = 0xFF;

}  // namespace

UINT virtualKey(int qtKey) {
    const bool isDigitOrLetter =
        (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z);
    if (isDigitOrLetter) return static_cast<UINT>(qtKey);
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) {
        return firstFunctionKey + static_cast<UINT>(qtKey - Qt::Key_F1);
    }
    const auto key = std::ranges::find_if(named, [=](const Key& k) { return k.qt == qtKey; });
    if (key != named.end()) return key->number;
    if (qtKey >= firstKeyWithoutCharacter) return anyOtherKey;
    const bool isGreek = qtKey >= 0x0370 && qtKey <= 0x03FF;
    const std::size_t letter = isGreek ? greekLetters.find(static_cast<char16_t>(qtKey)) : greekLetters.npos;
    return letter == greekLetters.npos ? anyCharacter : 'A' + static_cast<UINT>(letter);
}

}  // namespace platform
