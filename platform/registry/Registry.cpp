#include "platform/registry/Registry.h"

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

std::string fullPath(RegistryRoot root, std::string_view path) {
    const char* const name = root == HKEY_CLASSES_ROOT ? "HKEY_CLASSES_ROOT" : "HKEY_LOCAL_MACHINE";
    return std::string(name) + "\\" + toUtf8(path);
}

}  // namespace

std::optional<std::string> RegistryKey::queryString(std::string_view name, std::size_t maxBytes) const {
    const RegistryValue* value = node_->findValue(toUtf8(name));
    const auto* text = value ? std::get_if<std::string>(&value->data) : nullptr;
    if (!text) return std::nullopt;
    auto converted = fromUtf8(*text);
    if (converted.size() >= maxBytes) return std::nullopt;
    return converted;
}

std::optional<std::uint32_t> RegistryKey::queryDword(std::string_view name) const {
    const RegistryValue* value = node_->findValue(toUtf8(name));
    const auto* number = value ? std::get_if<std::uint32_t>(&value->data) : nullptr;
    return number ? std::optional(*number) : std::nullopt;
}

bool RegistryKey::setString(std::string_view name, std::string_view text) { return set(name, toUtf8(text)); }

bool RegistryKey::setDword(std::string_view name, std::uint32_t number) { return set(name, number); }

bool RegistryKey::set(std::string_view name, RegistryData data) {
    if (writable_) node_->setValue(toUtf8(name), std::move(data));
    return writable_;
}

std::optional<RegistryKey> Registry::openKey(RegistryRoot root, std::string_view path) {
    RegistryNode* node = tree_->find(fullPath(root, path));
    return node ? std::optional(RegistryKey(*node, false)) : std::nullopt;
}

std::optional<RegistryKey> Registry::openKeyForWriting(RegistryRoot root, std::string_view path) {
    RegistryNode* node = writable_ ? tree_->find(fullPath(root, path)) : nullptr;
    return node ? std::optional(RegistryKey(*node, true)) : std::nullopt;
}

std::optional<RegistryKey> Registry::createKey(RegistryRoot root, std::string_view path) {
    RegistryNode* node = writable_ ? tree_->make(fullPath(root, path)) : nullptr;
    return node ? std::optional(RegistryKey(*node, true)) : std::nullopt;
}

}  // namespace platform
