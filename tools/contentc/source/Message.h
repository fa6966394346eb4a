#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace contentc {

/// The languages of messages.
enum class Language { english, greek };

/// The language of the user's locale: Greek, or English for all others.
Language localeLanguage();

/// One thing that can be said, in both languages (UTF-8). `{1}` to `{9}` stand for the values of the one time
/// that it is said; both languages must name the same. Messages stand in one table for each subject, as
/// `inline constexpr` in the namespace `contentc::say`.
struct Message {
    consteval Message(std::string_view inEnglish, std::string_view inGreek)
        : english(inEnglish), greek(inGreek) {
        if (valuesIn(english) != valuesIn(greek)) throw "the languages name different values";
    }

    std::string_view english;
    std::string_view greek;

  private:
    /// One bit for each value that a text names.
    static consteval unsigned valuesIn(std::string_view text) {
        unsigned values = 0;
        for (std::size_t at = 0; at + 2 < text.size(); ++at) {
            const bool names =
                text[at] == '{' && text[at + 1] >= '1' && text[at + 1] <= '9' && text[at + 2] == '}';
            if (names) values |= 1U << (text[at + 1] - '0');
        }
        return values;
    }
};

/// A value in a message: text in UTF-8, or a number.
struct MessageValue {
    MessageValue(std::string value) : text(std::move(value)) {}
    MessageValue(std::string_view value) : text(value) {}
    MessageValue(const char* value) : text(value) {}
    MessageValue(std::integral auto number) : text(std::to_string(number)) {}

    bool operator==(const MessageValue&) const = default;

    std::string text;
};

using MessageValues = std::vector<MessageValue>;

/// A message with its values.
struct Phrase {
    Message message;
    MessageValues values;

    std::string in(Language language) const;
};

}  // namespace contentc
