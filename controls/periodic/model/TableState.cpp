#include "controls/periodic/model/TableState.h"

#include "controls/periodic/model/ElementKinds.h"

namespace controls::periodic {

namespace {

/// The bits of a half that hold one part of the state.
struct Field {
    int shift;
    int width;

    constexpr std::uint32_t mask() const { return ((1U << width) - 1) << shift; }
    constexpr int in(std::uint32_t half) const { return static_cast<int>((half & mask()) >> shift); }
    constexpr std::int32_t with(int value) const { return value << shift; }
};

constexpr Field selectedField{0, 8};
constexpr Field viewField{8, 8};
constexpr Field scaleField{16, 1};
constexpr std::uint32_t firstMask = selectedField.mask() | viewField.mask() | scaleField.mask();

constexpr Field highlightedField{0, 4};
constexpr Field kelvinField{4, 13};
constexpr Field yearField{17, 11};
// The kinds from 16 on came later.
constexpr Field manyKindsField{28, 1};
constexpr int manyKinds = 16;
constexpr std::uint32_t secondMask =
    highlightedField.mask() | kelvinField.mask() | yearField.mask() | manyKindsField.mask();

/// The bits of a half; none of them when any lies outside the mask.
std::uint32_t known(std::int32_t half, std::uint32_t mask) {
    const auto bits = static_cast<std::uint32_t>(half);
    return (bits & ~mask) == 0 ? bits : 0;
}

}  // namespace

std::int32_t firstHalf(const TableState& state) {
    return selectedField.with(state.selected) | viewField.with(viewCode(state.view)) |
           scaleField.with(state.otherScale ? 1 : 0);
}

std::int32_t secondHalf(const TableState& state) {
    return highlightedField.with(state.highlighted % manyKinds) |
           manyKindsField.with(state.highlighted / manyKinds) |
           kelvinField.with(state.kelvin == usualKelvin ? 0 : state.kelvin + 1) |
           yearField.with(state.year == maxYear ? 0 : state.year);
}

TableState stateOf(std::int32_t first, std::int32_t second) {
    const std::uint32_t a = known(first, firstMask);
    const std::uint32_t b = known(second, secondMask);
    TableState state;
    if (findElement(selectedField.in(a))) state.selected = selectedField.in(a);
    state.view = viewOfCode(viewField.in(a)).value_or(state.view);
    state.otherScale = scaleField.in(a) == 1 && hasOtherScale(state.view);
    const int kind = highlightedField.in(b) + manyKinds * manyKindsField.in(b);
    if (kind <= kindCount(state.view)) state.highlighted = kind;
    if (const int kelvin = kelvinField.in(b)-1; kelvin >= minKelvin && kelvin <= maxKelvin) {
        state.kelvin = kelvin;
    }
    if (const int year = yearField.in(b); year >= minYear && year <= maxYear) state.year = year;
    return state;
}

}  // namespace controls::periodic
