#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

/// Says which requests a page may make. Addresses are given as the program sees them, in code page 1253: a
/// DOS path for what lies on a drive, a URL for anything else.
class RequestPolicy {
  public:
    /// Restricts pages to these folders (DOS paths) and what lies below them. Without any, every drive is
    /// allowed.
    void setAllowedFolders(const std::vector<std::string>& folders);

    /// Lets the program, and pages of these hosts (names in small letters), ask for what lies on them by http
    /// and https. None at first.
    void setAllowedHosts(std::vector<std::string> hosts) { hosts_ = std::move(hosts); }

    /// Whether `page` may ask for `request`. An empty page is the program itself, which asks for the first
    /// page. Files of the allowed folders may be asked for by the program and by pages that lie in such
    /// folders too, pages of the allowed hosts by the program and each other; inline data by the program and
    /// all these pages; the empty page by all; nothing else by anyone.
    bool allows(std::string_view page, std::string_view request) const;

  private:
    bool allowsFile(std::string_view address) const;
    bool allowsHost(std::string_view address) const;

    std::vector<std::string> folders_;
    std::vector<std::string> hosts_;
};

}  // namespace platform
