#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

class RequestPolicy;
struct PageRequest;

/// The one policy of the process for all browsers, and the one place where refusals are logged.
class BrowserPolicy {
  public:
    static BrowserPolicy& instance();

    /// See RequestPolicy::setAllowedFolders.
    void setAllowedFolders(const std::vector<std::string>& folders);

    const std::vector<std::string>& allowedFolders() const;

    /// See RequestPolicy::setAllowedHosts. To be called before the first browser is made, since the engine
    /// finds no other host from then on.
    void setAllowedHosts(const std::vector<std::string>& hosts);

    /// See RequestPolicy::allows; a refusal is logged once, with its reason, under the category
    /// `platform.browser`.
    bool admit(const PageRequest& request);

    /// See RequestPolicy::allowsFile.
    bool allowsFile(std::string_view canonicalPath) const;

    /// Whether the program takes over an address that the user has followed in the browser with this control
    /// id. Then no page is loaded.
    using Follower = std::function<bool(int controlId, const std::string& address)>;
    void setFollower(Follower follower) { follower_ = std::move(follower); }
    bool isTakenOver(int controlId, const std::string& address) const {
        return follower_ && follower_(controlId, address);
    }

  private:
    BrowserPolicy();
    ~BrowserPolicy();

    void logRefusal(const PageRequest& request);

    std::unique_ptr<RequestPolicy> policy_;
    std::set<std::string> logged_;
    Follower follower_;
};

}  // namespace platform
