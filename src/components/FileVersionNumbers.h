#pragma once

#include <compare>
#include <cstdint>
#include <string_view>

namespace platform {
class Machine;
}

namespace kalyxo {

/// A file version as two numbers, which are compared in order.
struct FileVersionNumbers {
    std::uint32_t high = 0;  ///< first part × 65536 + second
    std::uint32_t low = 0;   ///< third part × 65536 + fourth

    // NOLINTNEXTLINE(modernize-use-nullptr): taken for a null pointer
    friend auto operator<=>(const FileVersionNumbers&, const FileVersionNumbers&) = default;
};

/// The numbers of a version text such as "1.0.40.0" or "1,0,40,0". Each part ends before its first character
/// that is no digit, and counts modulo 65536. A text without a full stop gives zeros; with fewer than four
/// parts `low` is 0.
FileVersionNumbers ParseFileVersion(std::string_view text);

/// The version of a file, zeros when it is missing or has none. A file name without a folder stands for the
/// library that the machine would load.
FileVersionNumbers GetFileVersionNumbers(platform::Machine& machine, std::string_view path);

}  // namespace kalyxo
