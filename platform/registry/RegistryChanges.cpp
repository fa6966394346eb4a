#include "platform/registry/RegistryChanges.h"

#include <memory>

namespace platform {

namespace {

RegistryNode& subkey(RegistryNode& parent, const std::string& lookupName, const std::string& name) {
    auto& key = parent.keys[lookupName];
    if (!key) {
        key = std::make_unique<RegistryNode>();
        key->name = name;
    }
    return *key;
}

}  // namespace

RegistryNode copyOf(const RegistryNode& key) {
    RegistryNode copy;
    copy.name = key.name;
    copy.values = key.values;
    for (const auto& [lookupName, child] : key.keys) {
        copy.keys[lookupName] = std::make_unique<RegistryNode>(copyOf(*child));
    }
    return copy;
}

void carryOverChanges(const RegistryNode& before, const RegistryNode& after, RegistryNode& target) {
    if (after.values != before.values) {
        for (const auto& [lookupName, value] : after.values) target.values[lookupName] = value;
    }
    const RegistryNode none;
    for (const auto& [lookupName, child] : after.keys) {
        const auto former = before.keys.find(lookupName);
        const bool isNew = former == before.keys.end();
        carryOverChanges(isNew ? none : *former->second, *child, subkey(target, lookupName, child->name));
    }
}

}  // namespace platform
