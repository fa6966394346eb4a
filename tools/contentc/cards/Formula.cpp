#include "tools/contentc/cards/Formula.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdint>

#include "controls/elements/Element.h"
#include "controls/elements/NumberText.h"

namespace contentc {
namespace {

constexpr int maxCount = 9999;
constexpr int maxDepth = 8;
constexpr int maxDecimals = 2;
// Nested brackets multiply; no molecule of a page has more atoms of an element.
constexpr std::int64_t maxAtoms = 1'000'000;

bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
bool isSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

void addTimes(AtomCounts& sum, const AtomCounts& atoms, int times) {
    for (const auto& [element, count] : atoms) {
        const std::int64_t total = sum[element] + std::int64_t{count} * times;
        sum[element] = static_cast<int>(std::min(total, maxAtoms));
    }
}

/// Reads a formula from its start; each function takes what it reads from `rest_`.
class FormulaReader {
  public:
    explicit FormulaReader(std::string_view formula) : rest_(formula) {}

    std::optional<AtomCounts> read() {
        AtomCounts sum;
        do {
            const int times = count();
            const auto part = group(0);
            if (times == 0 || !part || part->empty()) return std::nullopt;
            addTimes(sum, *part, times);
        } while (take('*'));
        return rest_.empty() ? std::optional(sum) : std::nullopt;
    }

  private:
    bool take(char c) {
        if (!rest_.starts_with(c)) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// A count, 1 when there is none and 0 when it is wrong.
    int count() {
        if (rest_.empty() || !isDigit(rest_.front())) return 1;
        int value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return error == std::errc() && value <= maxCount ? value : 0;
    }

    /// Symbols and brackets up to the end, a closing bracket or a `*`.
    std::optional<AtomCounts> group(int depth) {
        AtomCounts sum;
        while (!rest_.empty() && rest_.front() != ')' && rest_.front() != '*') {
            const auto part = take('(') ? bracket(depth + 1) : symbol();
            const int times = count();
            if (!part || times == 0) return std::nullopt;
            addTimes(sum, *part, times);
        }
        return sum;
    }

    std::optional<AtomCounts> bracket(int depth) {
        if (depth > maxDepth) return std::nullopt;
        auto inner = group(depth);
        return take(')') && inner && !inner->empty() ? inner : std::nullopt;
    }

    std::optional<AtomCounts> symbol() {
        const std::size_t length = rest_.size() > 1 && isSmallLetter(rest_[1]) ? 2 : 1;
        const auto found =
            std::ranges::find(controls::elements(), rest_.substr(0, length), &controls::Element::symbol);
        rest_.remove_prefix(length);
        if (found == controls::elements().end()) return std::nullopt;
        return AtomCounts{{found->number, 1}};
    }

    std::string_view rest_;
};

}  // namespace

std::optional<AtomCounts> atomsOf(std::string_view formula) { return FormulaReader(formula).read(); }

std::string molarMassText(const AtomCounts& atoms) {
    double mass = 0;
    int decimals = maxDecimals;
    for (const auto& [number, count] : atoms) {
        const controls::Element* element = controls::findElement(number);
        if (!element) return {};
        mass += element->mass.value().value_or(0) * count;
        decimals = std::min(decimals, element->mass.decimals());
    }
    return controls::fixedNumber(mass, decimals);
}

}  // namespace contentc
