#include "platform/registry/RegistryNode.h"

#include <algorithm>
#include <vector>

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

std::vector<std::string_view> pathParts(std::string_view path) {
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('\\'), path.size());
        if (end > 0) parts.push_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

}  // namespace

RegistryNode* RegistryNode::find(std::string_view path) {
    RegistryNode* node = this;
    for (const auto part : pathParts(path)) {
        const auto found = node->keys.find(registryLookupName(part));
        if (found == node->keys.end()) return nullptr;
        node = found->second.get();
    }
    return node;
}

RegistryNode* RegistryNode::make(std::string_view path) {
    const auto parts = pathParts(path);
    if (parts.size() > deepestRegistryPath) return nullptr;
    RegistryNode* node = this;
    for (const auto part : parts) {
        auto& key = node->keys[registryLookupName(part)];
        if (!key) {
            key = std::make_unique<RegistryNode>();
            key->name = part;
        }
        node = key.get();
    }
    return node;
}

void RegistryNode::remove(std::string_view path) {
    const auto parts = pathParts(path);
    if (parts.empty()) return;
    RegistryNode* node = this;
    for (std::size_t i = 0; node && i + 1 < parts.size(); ++i) node = node->find(parts[i]);
    if (node) node->keys.erase(registryLookupName(parts.back()));
}

void RegistryNode::setValue(std::string_view valueName, RegistryData data) {
    auto& value = values[registryLookupName(valueName)];
    if (value.name.empty()) value.name = valueName;
    value.data = std::move(data);
}

const RegistryValue* RegistryNode::findValue(std::string_view valueName) const {
    const auto found = values.find(registryLookupName(valueName));
    return found == values.end() ? nullptr : &found->second;
}

std::string registryLookupName(std::string_view name) {
    // A name outside the code page can only have come from a file; it is told apart by its bytes.
    const auto converted = fromUtf8Strict(name);
    return converted ? toUtf8(toLower(*converted)) : std::string(name);
}

}  // namespace platform
