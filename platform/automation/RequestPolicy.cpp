#include "platform/automation/RequestPolicy.h"

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

bool RequestPolicy::allows(std::string_view page, std::string_view request) const {
    if (request == emptyPage) return true;
    if (isInlineData(request)) return allowsFile(page);
    return allowsFile(request) && (page.empty() || page == emptyPage || allowsFile(page));
}

}  // namespace platform
