#pragma once

#include <string>

#include "controls/contract/ClassIds.h"
#include "src/components/Component.h"

namespace kalyxo {

/// The periodic table.
class CPeriodTable : public Component<CPeriodTable> {
  public:
    static constexpr std::string_view kName = "CPeriodTable";
    static constexpr std::string_view kClass = controls::periodicTableClass;

    std::string Version() { return Get<std::string>(1); }
    bool SetDataFolder(const std::string& dataFolder) { return Method<bool>(2, dataFolder); }
    void Redraw() { Method<void>(3); }
    /// The two halves of the table's state. SetState restores them.
    std::int32_t GetStateA() { return Method<std::int32_t>(4); }
    std::int32_t GetStateB() { return Method<std::int32_t>(5); }
    void SetState(std::int32_t stateA, std::int32_t stateB) { Method<void>(6, stateA, stateB); }
};

}  // namespace kalyxo
