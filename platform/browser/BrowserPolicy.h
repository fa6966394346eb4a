#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/browser/RequestPolicy.h"

namespace platform {

/// The one policy of the process for all browser controls, and the one place where refusals are logged.
class BrowserPolicy {
  public:
    static BrowserPolicy& instance();

    /// See RequestPolicy::setAllowedFolders.
    void setAllowedFolders(const std::vector<std::string>& folders) { policy_.setAllowedFolders(folders); }

    /// See RequestPolicy::setAllowedHosts. To be called before the first browser is made, since the engine
    /// finds no other host from then on.
    void setAllowedHosts(const std::vector<std::string>& hosts);

    /// See RequestPolicy::allows; a refusal is logged under the category `platform.browser`.
    bool admit(std::string_view page, std::string_view request) const;

  private:
    BrowserPolicy() = default;

    RequestPolicy policy_;
};

}  // namespace platform
