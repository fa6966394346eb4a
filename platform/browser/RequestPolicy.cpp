#include "platform/browser/RequestPolicy.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/files/DosPath.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

constexpr std::string_view emptyPage = "about:blank";

/// The path without dot names, in lower case, each name followed by a backslash; nothing for an address
/// that is no DOS path.
std::optional<std::string> comparable(std::string_view address) {
    const auto path = parseDosPath(address.substr(0, address.find_first_of("?#")));
    if (!path) return std::nullopt;
    std::string text{path->letter, ':', '\\'};
    for (const auto& name : path->names) text += fromUtf8(name) + '\\';
    return toLower(text);
}

/// The host of an http or https address, in small letters; empty for any other. What stands before an at sign
/// is no part of it.
std::string hostOf(std::string_view address) {
    for (const std::string_view scheme : {"http://", "https://"}) {
        if (toLower(address.substr(0, scheme.size())) != scheme) continue;
        std::string_view host = address.substr(scheme.size());
        host = host.substr(0, host.find_first_of("/\\?#"));
        host.remove_prefix(host.rfind('@') + 1);
        return toLower(host.substr(0, host.find(':')));
    }
    return {};
}

bool isInlineData(std::string_view address) {
    return address.starts_with("data:") || address.starts_with("blob:");
}

}  // namespace

void RequestPolicy::setAllowedFolders(const std::vector<std::string>& folders) {
    folders_.clear();
    for (const auto& folder : folders) {
        if (auto text = comparable(folder)) folders_.push_back(std::move(*text));
    }
}

bool RequestPolicy::allowsFile(std::string_view address) const {
    const auto text = comparable(address);
    if (!text) return false;
    return folders_.empty() || std::any_of(folders_.begin(), folders_.end(),
                                           [&](const auto& folder) { return text->starts_with(folder); });
}

bool RequestPolicy::allowsHost(std::string_view address) const {
    const std::string host = hostOf(address);
    return !host.empty() && std::find(hosts_.begin(), hosts_.end(), host) != hosts_.end();
}

bool RequestPolicy::allows(std::string_view page, std::string_view request) const {
    if (request == emptyPage) return true;
    const bool isProgram = page.empty() || page == emptyPage;
    if (isInlineData(request)) return isProgram || allowsFile(page) || allowsHost(page);
    if (allowsHost(request)) return isProgram || allowsHost(page);
    return allowsFile(request) && (isProgram || allowsFile(page));
}

}  // namespace platform
