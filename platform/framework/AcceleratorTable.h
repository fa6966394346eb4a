#pragma once

#include <Qt>
#include <optional>
#include <span>
#include <vector>

#include "platform/base/Resources.h"

namespace platform {

/// The program's key combinations and their commands.
class AcceleratorTable {
  public:
    explicit AcceleratorTable(std::span<const Accelerator> accelerators);

    /// The command of a virtual key with these modifiers, nothing when there is none.
    std::optional<UINT> find(UINT key, Qt::KeyboardModifiers modifiers) const;

  private:
    struct Row {
        UINT key;
        Qt::KeyboardModifiers modifiers;
        UINT command;
    };
    std::vector<Row> rows_;
};

}  // namespace platform
