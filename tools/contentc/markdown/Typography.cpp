#include "tools/contentc/markdown/Typography.h"

#include <algorithm>
#include <array>

#include "platform/text/CodePageTable.h"

namespace contentc {
namespace {

constexpr std::string_view joiningBlank = "\u00A0";
constexpr std::string_view minus = "\u2212";
constexpr std::size_t groupSize = 3;

// Units that follow a number. No letter may follow the unit.
constexpr std::array<std::string_view, 47> units{
    "%",   "‰",   "°C",  "°",   "K",  "g",  "kg",  "mg", "µg", "μg",  "t",   "m",  "cm", "mm",   "µm",  "μm",
    "nm",  "pm",  "km",  "L",   "mL", "dm", "mol", "M",  "s",  "min", "h",   "J",  "kJ", "kcal", "cal", "Pa",
    "kPa", "hPa", "atm", "bar", "V",  "A",  "W",   "kW", "Hz", "u",   "ppm", "eV", "Da", "π.Χ.", "μ.Χ."};

bool isDigitAt(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

bool isLetterAt(std::string_view text, std::size_t at) {
    if (at >= text.size()) return false;
    const char32_t c = platform::codepage::decodeUtf8(text, at).value;
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || (c >= 0x370 && c < 0x400);
}

bool startsWithUnit(std::string_view text) {
    if (text.empty()) return false;
    if (platform::codepage::decodeUtf8(text, 0).value >= firstMark) return true;
    return std::ranges::any_of(units, [text](std::string_view unit) {
        return text.starts_with(unit) && !isLetterAt(text, unit.size());
    });
}

/// Whether at the offset stands a group of exactly three digits.
bool isGroupAt(std::string_view text, std::size_t at) {
    for (std::size_t i = 0; i < groupSize; ++i) {
        if (!isDigitAt(text, at + i)) return false;
    }
    return !isDigitAt(text, at + groupSize);
}

std::size_t digitsBefore(std::string_view text, std::size_t at) {
    std::size_t count = 0;
    while (count < at && isDigitAt(text, at - 1 - count)) ++count;
    return count;
}

class Typesetter {
  public:
    explicit Typesetter(std::string_view text) : text_(text) {}

    std::string run() {
        while (at_ < text_.size()) step();
        return std::move(result_);
    }

  private:
    void step() {
        const std::size_t plain = std::min(text_.find_first_of("- ", at_), text_.size()) - at_;
        if (plain > 0) return take(plain, text_.substr(at_, plain));
        const std::string_view rest = text_.substr(at_);
        if (rest.starts_with("---")) {
            take(3, "\u2014");
        } else if (rest.starts_with("--")) {
            take(2, "\u2013");
        } else if (rest.front() == '-' && isDigitAt(text_, at_ + 1) && beginsWord()) {
            take(1, minus);
        } else if (rest.front() == ' ' && joinsNumber(text_, at_)) {
            take(1, joiningBlank);
        } else {
            take(1, rest.substr(0, 1));
        }
    }

    void take(std::size_t length, std::string_view written) {
        result_.append(written);
        at_ += length;
    }

    bool beginsWord() const {
        constexpr std::string_view openers = " (/:[\n=";
        const std::string_view before = text_.substr(0, at_);
        return before.empty() || openers.find(before.back()) != std::string_view::npos ||
               before.ends_with("«") || before.ends_with("≈") || before.ends_with(joiningBlank);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::string result_;
};

}  // namespace

bool joinsNumber(std::string_view text, std::size_t blank) {
    if (blank == 0 || !isDigitAt(text, blank - 1)) return false;
    return startsWithUnit(text.substr(blank + 1)) ||
           (isGroupAt(text, blank + 1) && digitsBefore(text, blank) <= groupSize);
}

std::string typeset(std::string_view text) { return Typesetter(text).run(); }

}  // namespace contentc
