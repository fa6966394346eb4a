#include "platform/plugins/PluginTypes.h"

#include "platform/plugins/FileType.h"
#include "platform/text/CodePage1253.h"

namespace platform {

PluginTypes& PluginTypes::instance() {
    static PluginTypes types;
    return types;
}

void PluginTypes::add(std::string_view extension, std::string_view page) {
    pages_.insert_or_assign(toLower(extension), std::string(page));
}

const std::string* PluginTypes::pageFor(std::string_view path) const {
    const auto found = pages_.find(extensionOf(path));
    return found == pages_.end() ? nullptr : &found->second;
}

std::vector<std::string> PluginTypes::extensions() const {
    std::vector<std::string> names;
    names.reserve(pages_.size());
    for (const auto& [extension, page] : pages_) names.push_back(extension);
    return names;
}

}  // namespace platform
