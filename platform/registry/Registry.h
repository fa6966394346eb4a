#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/registry/RegistryNode.h"

namespace platform {

/// The two trees of keys that the program uses.
enum RegistryRoot { HKEY_CLASSES_ROOT, HKEY_LOCAL_MACHINE };

/// An open key. Lasts no longer than its registry. Names and texts are code page 1253; names are found
/// without regard to case, and the empty name is the key's default value.
class RegistryKey {
  public:
    /// A text value (REG_SZ), or nothing when there is none, it is of another type, or it takes more than
    /// `maxBytes` bytes with the NUL after it.
    std::optional<std::string> queryString(std::string_view name, std::size_t maxBytes) const;

    /// A 32-bit number (REG_DWORD), or nothing when there is none or it is of another type.
    std::optional<std::uint32_t> queryDword(std::string_view name) const;

    /// Sets a text value (REG_SZ), whatever stood there; false when the key is open for reading only.
    bool setString(std::string_view name, std::string_view text);

    /// Sets a 32-bit number (REG_DWORD), whatever stood there; false when the key is open for reading only.
    bool setDword(std::string_view name, std::uint32_t number);

  private:
    friend class Registry;
    RegistryKey(RegistryNode& node, bool writable) : node_(&node), writable_(writable) {}

    bool set(std::string_view name, RegistryData data);

    RegistryNode* node_;
    bool writable_;
};

/// The registry: named keys in trees, with typed values. Key paths are code page 1253, parts joined by
/// backslashes, found without regard to case.
class Registry {
  public:
    Registry() : tree_(std::make_unique<RegistryNode>()) {}
    /// Takes over a tree whose first level is the roots by name ("HKEY_LOCAL_MACHINE").
    explicit Registry(RegistryNode tree) : tree_(std::make_unique<RegistryNode>(std::move(tree))) {}

    /// Opens an existing key for reading.
    std::optional<RegistryKey> openKey(RegistryRoot root, std::string_view path);

    /// Opens an existing key for reading and writing; nothing also while the registry is not writable.
    std::optional<RegistryKey> openKeyForWriting(RegistryRoot root, std::string_view path);

    /// Opens a key for reading and writing, made if it is missing; nothing while the registry is not
    /// writable.
    std::optional<RegistryKey> createKey(RegistryRoot root, std::string_view path);

    /// Whether keys can be opened for writing, as for a user with the right to; at first true.
    void setWritable(bool writable) { writable_ = writable; }
    bool writable() const { return writable_; }

    /// All keys; the first level is the roots by name.
    const RegistryNode& tree() const { return *tree_; }

  private:
    // On the heap, so that open keys stay good when the registry is moved.
    std::unique_ptr<RegistryNode> tree_;
    bool writable_ = true;
};

}  // namespace platform
