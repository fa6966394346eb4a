#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace contentc {

/// Names what something is made from: all that can change the result.
class Fingerprint {
  public:
    void add(std::string_view bytes);
    /// 32 hexadecimal digits.
    std::string text() const;

  private:
    std::uint64_t first_ = 0xCBF29CE484222325;
    std::uint64_t second_ = 0x9AE16A3B2F90404F;
};

/// The folder that keeps what other programs have made, by the fingerprint of what it was made from.
class MadeFiles {
  public:
    explicit MadeFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Where the file is kept, with an extension that begins with a dot.
    std::filesystem::path pathOf(const Fingerprint& source, std::string_view extension) const;
    /// Whether it has been made.
    static bool has(const std::filesystem::path& path);
    /// A path beside it for the making, with the same extension; empty when the folder cannot be made.
    std::filesystem::path partOf(const std::filesystem::path& path) const;
    /// Ends the making: gives the part its place.
    static bool keep(const std::filesystem::path& part, const std::filesystem::path& path);
    /// Deletes what nobody has asked for in three months.
    void deleteOld() const;

  private:
    std::filesystem::path folder_;
};

/// `kalyxo/contentc` in the user's cache folder.
std::filesystem::path userMadeFilesFolder();

}  // namespace contentc
