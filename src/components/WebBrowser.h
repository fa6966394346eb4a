#pragma once

#include <memory>
#include <string>

#include "src/components/ClassIds.h"
#include "src/components/Component.h"

namespace kalyxo {

/// The web browser that shows the pages.
class CWebBrowser : public Component<CWebBrowser> {
  public:
    static constexpr std::string_view kName = "CWebBrowser";
    static constexpr std::string_view kClass = kWebBrowserClass;

    /// Flags of a navigation that leaves no trace in the browser's own history and caches.
    static constexpr std::int32_t kNoHistoryNoCache = 14;
    /// Commands of a document's command target.
    static constexpr std::int32_t kCommandPrint = 6;
    static constexpr std::int32_t kCommandCopy = 12;

    void Navigate(const std::string& url, const platform::Variant& flags = {}) {
        const platform::Variant none;
        Method<void>(104, url, flags, none, none, none);
    }
    /// The normal refresh.
    void Refresh2() { Method<void>(105, std::int16_t{0}); }
    std::shared_ptr<platform::Dispatch> Document() { return Get<std::shared_ptr<platform::Dispatch>>(203); }
};

}  // namespace kalyxo
