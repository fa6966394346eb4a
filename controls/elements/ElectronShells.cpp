#include "controls/elements/ElectronShells.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

namespace controls {

namespace {

constexpr std::string_view letters = "spdf";

/// Reads one subshell, such as "3d10".
std::optional<Subshell> subshellOf(std::string_view word) {
    if (word.size() < 3 || word[0] < '1' || word[0] > '7') return std::nullopt;
    if (letters.find(word[1]) == std::string_view::npos) return std::nullopt;
    Subshell subshell{word[0] - '0', word[1], 0};
    const auto [end, error] = std::from_chars(word.data() + 2, word.data() + word.size(), subshell.electrons);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    return whole ? std::optional(subshell) : std::nullopt;
}

const Element* nobleGas(std::string_view symbol) {
    const auto found = std::ranges::find(elements(), symbol, &Element::symbol);
    return found != elements().end() && found->family == Family::nobleGas ? &*found : nullptr;
}

/// Adds the subshells that a word of a configuration stands for; false when it stands for none.
bool add(std::string_view word, int number, std::vector<Subshell>& subshells) {
    if (const auto subshell = subshellOf(word)) {
        subshells.push_back(*subshell);
        return true;
    }
    const Element* core = nobleGas(word);
    if (!core || core->number >= number) return false;
    const auto inner = subshellsOf(*core);
    subshells.insert(subshells.end(), inner.begin(), inner.end());
    return true;
}

}  // namespace

std::vector<Subshell> subshellsOf(const Element& element) {
    std::vector<Subshell> subshells;
    std::string_view rest = element.configuration;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (!add(rest.substr(0, end), element.number, subshells)) return {};
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    std::ranges::sort(subshells, {}, [](const Subshell& each) {
        return each.shell * static_cast<int>(letters.size()) + static_cast<int>(letters.find(each.letter));
    });
    return subshells;
}

std::vector<int> shellsOf(const Element& element) {
    std::vector<int> shells;
    for (const Subshell& subshell : subshellsOf(element)) {
        shells.resize(static_cast<std::size_t>(subshell.shell));
        shells.back() += subshell.electrons;
    }
    return shells;
}

}  // namespace controls
