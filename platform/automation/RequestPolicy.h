#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Says which requests a page may make. Addresses are given as the program sees them, in code page 1253: a
/// DOS path for what lies on a drive, a URL for anything else.
class RequestPolicy {
  public:
    /// Restricts pages to these folders (DOS paths) and what lies below them. Without any, every drive is
    /// allowed.
    void setAllowedFolders(const std::vector<std::string>& folders);

    /// Whether `page` may ask for `request`. An empty page is the program itself, which asks for the first
    /// page. Files of the allowed folders may be asked for by the program and by pages that lie in such
    /// folders too; inline data by those pages; the empty page by all; nothing else by anyone.
    bool allows(std::string_view page, std::string_view request) const;

  private:
    bool allowsFile(std::string_view address) const;

    std::vector<std::string> folders_;
};

}  // namespace platform
