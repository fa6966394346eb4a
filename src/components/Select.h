#pragma once

#include <string>

#include "controls/contract/ClassIds.h"
#include "src/components/Component.h"

namespace kalyxo {

/// The browse selection: the topics of one section and their entries.
class CSelect : public Component<CSelect> {
  public:
    static constexpr std::string_view kName = "CSelect";
    static constexpr std::string_view kClass = controls::browseSelectionClass;

    std::string Version() { return Get<std::string>(1); }
    std::string GetPageTitle(std::int32_t pageId) { return Method<std::string>(2, pageId); }
    /// To be called right after creation, and again when the data folder has changed.
    void Initialise(std::int16_t hostCode, const std::string& dataFolder, platform::HWND view) {
        Method<void>(3, hostCode, dataFolder, view);
    }
    std::string GetItemTitle(std::int32_t itemCode) { return Method<std::string>(4, itemCode); }
    void SetSection(std::int16_t sectionCode) { Method<void>(5, sectionCode); }
    /// Shows a page or an entry. The component answers with an event before it returns.
    void ShowItem(std::int32_t pageId, std::int32_t itemCode, bool flag) {
        Method<void>(6, pageId, itemCode, flag);
    }
    /// The window that the notice of an Enter key goes to.
    platform::HWND GetAuxHandle() { return Method<std::int32_t>(7); }
    platform::HWND GetEditWindow() { return Method<std::int32_t>(8); }
};

}  // namespace kalyxo
