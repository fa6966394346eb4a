#pragma once

#include <string>

#include "src/components/ClassIds.h"
#include "src/components/Component.h"

namespace kalyxo {

/// The data analyser.
class CDataAnal : public Component<CDataAnal> {
  public:
    static constexpr std::string_view kName = "CDataAnal";
    static constexpr std::string_view kClass = kDataAnalClass;

    std::string Version() { return Get<std::string>(1); }
    /// 0 = the table is shown, otherwise a graph.
    std::int16_t GetViewMode() { return Get<std::int16_t>(2); }
    /// Once, right after creation.
    void Initialise(std::int32_t hostCode, const std::string& dataFolder) {
        Method<void>(10, hostCode, dataFolder);
    }
    void CopyAllData() { Method<void>(11); }
    void CopySelection() { Method<void>(12); }
    void PrintView() { Method<void>(23); }
    std::int16_t CopyGraph() { return Method<std::int16_t>(22); }
};

}  // namespace kalyxo
