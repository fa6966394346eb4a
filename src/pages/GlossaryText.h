#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// Whether an address, in any letter case, asks for the enlarged view: 8 characters that end in "a.htm", such
/// as "D:\a.htm".
bool IsEnlargedViewLink(std::string_view url);

/// The name of the glossary file that an address asks for: what follows the first glossary prefix, in small
/// letters; empty when that would lie outside of the glossary folder. Nothing when the address is no glossary
/// link.
std::optional<std::string> GlossaryFile(std::string_view url);

/// The definition in a glossary file: its lines after the first, joined by CR LF. Nothing when the file
/// cannot be read or the definition is shorter than 5 characters or longer than any real one.
std::optional<std::string> ReadDefinition(const platform::FileSystem& files, std::string_view path);

}  // namespace kalyxo
