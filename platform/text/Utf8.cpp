#include "platform/text/Utf8.h"

namespace platform {

void appendUtf8(std::string& text, char32_t character) {
    const auto tail = [character](unsigned shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += {static_cast<char>(0xC0U | (character >> 6U)), tail(0)};
    } else if (character < 0x10000) {
        text += {static_cast<char>(0xE0U | (character >> 12U)), tail(6), tail(0)};
    } else {
        text += {static_cast<char>(0xF0U | (character >> 18U)), tail(12), tail(6), tail(0)};
    }
}

}  // namespace platform
