#pragma once

#include <compare>
#include <cstdint>
#include <string_view>

namespace platform {
class Machine;
}

namespace kalyxo {

/// A file version as two numbers that compare like it.
struct FileVersionNumbers {
    std::uint32_t most = 0;   ///< first part × 65536 + second
    std::uint32_t least = 0;  ///< third part × 65536 + fourth

    // NOLINTNEXTLINE(modernize-use-nullptr): taken for a null pointer
    friend auto operator<=>(const FileVersionNumbers&, const FileVersionNumbers&) = default;
};

/// The numbers of a version text such as "1.0.40.0" or "1,0,40,0". Each part counts modulo 65536 and is read
/// up to its first other character than a digit. A text without a stop gives 0.0, one of less than four parts
/// leaves `least` at 0.
FileVersionNumbers ParseFileVersion(std::string_view text);

/// The version that a file carries, 0.0 when it is missing or carries none. A bare file name stands for the
/// library in use, as the machine finds it.
FileVersionNumbers GetFileVersionNumbers(platform::Machine& machine, std::string_view path);

}  // namespace kalyxo
