#include "tools/contentc/source/Message.h"

#include <cstdlib>

namespace contentc {

Language localeLanguage() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(name);
        if (value == nullptr || *value == '\0') continue;
        return std::string_view(value).starts_with("el") ? Language::greek : Language::english;
    }
    return Language::english;
}

std::string Phrase::in(Language language) const {
    const std::string_view text = language == Language::greek ? message.greek : message.english;
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool names =
            at + 2 < text.size() && text[at] == '{' && text[at + 2] == '}' && text[at + 1] >= '1';
        const auto value = names ? static_cast<std::size_t>(text[at + 1] - '1') : values.size();
        if (value >= values.size()) {
            result.push_back(text[at]);
        } else {
            result.append(values[value].text);
            at += 2;
        }
    }
    return result;
}

}  // namespace contentc
