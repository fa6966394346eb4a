#include "src/resources/ResourceTable.h"

#include <array>

#include "src/resources/DialogTable.h"
#include "src/resources/MenuTable.h"
#include "src/resources/ResourceIds.h"
#include "src/resources/StringTable.h"

namespace kalyxo {

namespace {

constexpr std::array kCursors = {
    platform::CursorResource{IDC_RESIZE_HORIZONTAL, {9, 15}},
    platform::CursorResource{IDC_RESIZE_VERTICAL, {16, 9}},
    platform::CursorResource{IDC_HAND_CURSOR, {12, 5}},
    platform::CursorResource{IDC_DRAG_CURSOR, {5, 3}},
};

}  // namespace

const platform::ResourceTable& ProgramResources() {
    static const platform::ResourceTable table{
        .menu = MainMenu(),
        .accelerators = MainAccelerators(),
        .strings = StringTable(),
        .cursors = kCursors,
        .iconName = "kalyxo",
        .dialogs = DialogTable(),
    };
    return table;
}

}  // namespace kalyxo
