#include "tools/contentc/source/NameKey.h"

#include "platform/text/Fold.h"

namespace contentc {

std::string nameKey(std::string_view name) {
    constexpr std::string_view ignoredAtEnd = " \t;";
    std::string key;
    for (const char c : platform::fold(name)) {
        const bool isBlank = c == ' ' || c == '\t' || c == '\xA0';
        if (!isBlank) {
            key.push_back(c);
        } else if (!key.empty() && key.back() != ' ') {
            key.push_back(' ');
        }
    }
    key.erase(key.find_last_not_of(ignoredAtEnd) + 1);
    return key;
}

}  // namespace contentc
