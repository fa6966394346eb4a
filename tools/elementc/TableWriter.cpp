#include "tools/elementc/TableWriter.h"

#include <algorithm>
#include <array>
#include <limits>

namespace elementc {

namespace {

constexpr std::string_view head = R"(// Made by elementc; where each figure comes from: docs/third-party.md.
#include <array>

#include "controls/elements/Element.h"
#include "platform/text/GreekLiteral.h"

namespace controls {

namespace {

using namespace platform::literals;
using enum Family;

constexpr std::array<Element, elementCount> table{{
)";

constexpr std::string_view tail = R"(}};

}  // namespace

std::span<const Element, elementCount> elements() { return table; }

}  // namespace controls
)";

constexpr std::array<std::string_view, 6> required{"symbol", "Greek name", "name",
                                                   "family", "mass",       "discovered"};

// In the order of the members of Element.
constexpr std::array<std::string_view, 10> figures{"mass",
                                                   "melting",
                                                   "boiling",
                                                   "density g/cm³",
                                                   "electronegativity",
                                                   "ionisation",
                                                   "covalent radius pm",
                                                   "crust mg/kg",
                                                   "affinity",
                                                   "van der Waals radius pm"};

bool isDecimal(std::string_view text) {
    return text.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::ranges::count(text, '.') <= 1 && text != ".";
}

/// Whether a text can be put between quotes without escapes.
bool isPlain(std::string_view text) { return text.find_first_of("\"\\\n\r") == std::string_view::npos; }

/// Whether a text is a list of oxidation numbers in ascending order, such as "-1 +1", or just "0".
bool areOxidationNumbers(std::string_view text) {
    if (text.empty() || text == "0") return true;
    constexpr std::size_t wordLength = 3;  // with the space behind it
    int last = std::numeric_limits<int>::min();
    for (std::size_t at = 0; at + 1 < text.size(); at += wordLength) {
        const bool isParted = at == 0 || text[at - 1] == ' ';
        const bool isSigned = text[at] == '-' || text[at] == '+';
        const int number = (text[at + 1] - '0') * (text[at] == '-' ? -1 : 1);
        if (!isParted || !isSigned || number <= last || number < -9 || number > 9) return false;
        last = number;
    }
    return text.size() % wordLength == wordLength - 1;
}

Result<void> check(const Record& record) {
    for (const std::string_view name : required) {
        if (field(record, name).empty()) return Failure{"no " + std::string(name)};
    }
    for (const std::string_view name : figures) {
        if (!isDecimal(field(record, name))) return Failure{std::string(name) + " is no decimal number"};
    }
    if (field(record, "discovered").find_first_not_of("0123456789") != std::string_view::npos) {
        return Failure{"the year is no number"};
    }
    if (!areOxidationNumbers(field(record, "oxidation numbers")))
        return Failure{"no list of oxidation numbers"};
    const bool plain = std::ranges::all_of(record, [](const auto& each) { return isPlain(each.second); });
    if (!plain) return Failure{"a text with a quotation mark, backslash or line end"};
    return {};
}

std::string quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string figure(std::string_view text) {
    return '{' + (text.empty() ? std::string() : quoted(text)) + '}';
}

std::string line(int number, const Record& record) {
    std::string text = "    {" + std::to_string(number) + ", " + quoted(field(record, "symbol")) + ", " +
                       quoted(field(record, "Greek name")) + "_gr, " + quoted(field(record, "name")) + ", " +
                       std::string(field(record, "family"));
    for (const std::string_view name : figures) text += ", " + figure(field(record, name));
    return text + ", " + quoted(field(record, "configuration")) + ", " +
           quoted(field(record, "oxidation numbers")) + ", " + std::string(field(record, "discovered")) +
           "},\n";
}

}  // namespace

Result<std::string> writeTable(const Records& records) {
    std::string text(head);
    for (const auto& [number, record] : records) {
        if (const auto checked = check(record); !checked)
            return Failure{"element " + std::to_string(number) + ": " + checked.failure().message};
        text += line(number, record);
    }
    text.append(tail);
    return text;
}

}  // namespace elementc
