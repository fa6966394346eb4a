#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace platform {

/// The platform's limit on how many keys stand in a path.
inline constexpr std::size_t deepestRegistryPath = 512;

/// A value whose type the program does not read; kept as it stands in the registry file, so that nothing is
/// lost.
struct RegistryOther {
    std::string text;  ///< UTF-8, what follows the equals sign, on one line; for example "hex(2):41,00"

    bool operator==(const RegistryOther&) const = default;
};

/// The content of a value: a text (REG_SZ, UTF-8 here), a 32-bit number (REG_DWORD) or something else.
using RegistryData = std::variant<std::string, std::uint32_t, RegistryOther>;

/// A value of a key; the name as it was written (UTF-8).
struct RegistryValue {
    std::string name;
    RegistryData data;

    bool operator==(const RegistryValue&) const = default;
};

/// A key with its values and subkeys, each filed under its `registryLookupName`.
struct RegistryNode {
    std::string name;  ///< as it was written (UTF-8)
    std::map<std::string, RegistryValue> values;
    std::map<std::string, std::unique_ptr<RegistryNode>> keys;

    /// The subkey of that path (UTF-8, parts joined by backslashes), or null. The empty path is the key
    /// itself.
    RegistryNode* find(std::string_view path);
    /// The same, with missing keys created; null when the path has more than `deepestRegistryPath` parts.
    RegistryNode* make(std::string_view path);
    /// Removes the subkey of that path with all below it, if it is there.
    void remove(std::string_view path);

    void setValue(std::string_view valueName, RegistryData data);
    const RegistryValue* findValue(std::string_view valueName) const;
};

/// What a name (UTF-8) is filed under: the name without regard to case.
std::string registryLookupName(std::string_view name);

}  // namespace platform
