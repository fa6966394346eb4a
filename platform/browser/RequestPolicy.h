#pragma once

#include <QUrl>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

/// Who makes a request, and for what.
enum class RequestKind {
    program,   ///< the program, for the page that it shows
    mainPage,  ///< a page, for another page in its place, after the user has pressed something in it
    onward,    ///< a page, for another page in its place, when the user has pressed nothing: a refresh
    part,      ///< a page, for anything that it shows or reads: frames, pictures, files, scripts
};

/// A request that is to be judged.
struct PageRequest {
    RequestKind kind = RequestKind::part;
    QUrl page;  ///< the page that asks; not used when the program does
    QUrl address;
};

/// Says which requests are allowed. The program may ask for the files of the allowed folders and for what the
/// allowed hosts have. A page of these folders may ask for their files, and a page of these hosts for what
/// they have. Both kinds of pages may hold inline data as a part and may be replaced by the empty page.
/// Nothing else is allowed.
class RequestPolicy {
  public:
    /// The folders (DOS paths, code page 1253) that files may come from. None at first.
    void setAllowedFolders(std::vector<std::string> folders) { folders_ = std::move(folders); }

    const std::vector<std::string>& allowedFolders() const { return folders_; }

    /// The hosts (names in small letters) that http and https may reach. None at first.
    void setAllowedHosts(std::vector<std::string> hosts) { hosts_ = std::move(hosts); }

    bool allows(const PageRequest& request) const { return whyRefused(request).empty(); }

    /// Why a request is refused, in English for the log; empty when it is allowed.
    std::string_view whyRefused(const PageRequest& request) const;

    /// Whether a file lies in an allowed folder, by its canonical path (see canonicalDosPath).
    bool allowsFile(std::string_view canonicalPath) const;

  private:
    bool allowsFile(const QUrl& url) const;
    bool allowsHost(const QUrl& url) const;

    std::vector<std::string> folders_;
    std::vector<std::string> hosts_;
};

}  // namespace platform
