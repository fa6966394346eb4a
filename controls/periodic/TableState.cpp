#include "controls/periodic/TableState.h"

namespace controls::periodic {

namespace {

constexpr int viewShift = 8;
constexpr std::uint32_t byteMask = 0xFF;

}  // namespace

std::int32_t firstHalf(const TableState& state) {
    return state.selected | (static_cast<int>(state.view) << viewShift);
}

std::int32_t secondHalf(const TableState& state) {
    return state.highlighted ? familyCode(*state.highlighted) : 0;
}

TableState stateOf(std::int32_t first, std::int32_t second) {
    TableState state;
    state.highlighted = familyOfCode(second);
    const auto bits = static_cast<std::uint32_t>(first);
    const auto view = bits >> viewShift;
    if (view != static_cast<std::uint32_t>(TableView::families)) return state;
    const auto selected = static_cast<int>(bits & byteMask);
    if (findElement(selected)) state.selected = selected;
    return state;
}

}  // namespace controls::periodic
