#include "platform/framework/AcceleratorTable.h"

#include <QKeySequence>

#include "platform/input/VirtualKeys.h"
#include "platform/qt/QtConvert.h"

namespace platform {

AcceleratorTable::AcceleratorTable(std::span<const Accelerator> accelerators) {
    for (const Accelerator& accelerator : accelerators) {
        const auto keys = QKeySequence::fromString(toQt(accelerator.keys), QKeySequence::PortableText);
        if (keys.isEmpty()) continue;
        rows_.push_back({virtualKey(keys[0].key()), keys[0].keyboardModifiers(), accelerator.id});
    }
}

std::optional<UINT> AcceleratorTable::find(UINT key, Qt::KeyboardModifiers modifiers) const {
    modifiers &= Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    for (const Row& row : rows_) {
        if (row.key == key && row.modifiers == modifiers) return row.command;
    }
    return std::nullopt;
}

}  // namespace platform
