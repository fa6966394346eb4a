#include "tools/contentc/source/SourceFile.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <utility>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/FileMessages.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;

constexpr int readAttempts = 3;
constexpr std::uintmax_t largestFile = 256 * 1024 * 1024;

/// What changes with a file when it is written.
std::pair<std::uintmax_t, fs::file_time_type> stateOf(const fs::path& path, std::error_code& failed) {
    const std::uintmax_t size = fs::file_size(path, failed);
    if (failed) return {};
    return {size, fs::last_write_time(path, failed)};
}

const Message& reasonOf(const std::error_code& failed) {
    if (failed == std::errc::permission_denied) return say::mayNotBeRead;
    return say::cannotBeRead;
}

}  // namespace

std::string takenExtension(const fs::path& path) {
    using Pair = std::pair<std::string_view, std::string_view>;
    constexpr std::array<Pair, 3> same{Pair{".jpeg", ".jpg"}, Pair{".sdf", ".mol"}, Pair{".markdown", ".md"}};
    std::string extension = platform::toLower(path.extension().string());
    for (const auto& [other, taken] : same) {
        if (extension == other) return std::string(taken);
    }
    return extension;
}

std::optional<SourceFile> readSourceFile(const fs::path& path, Diagnostics& diagnostics) {
    SourceFile file{path, {}};
    std::error_code failed;
    if (!fs::is_regular_file(path, failed)) {
        diagnostics.error(file.place(), failed ? reasonOf(failed) : say::isNoFile);
        return std::nullopt;
    }
    for (int attempt = 0; attempt < readAttempts; ++attempt) {
        const auto before = stateOf(path, failed);
        if (!failed && before.first > largestFile) {
            diagnostics.error(file.place(), say::fileIsTooLarge, {largestFile / (1024 * 1024)});
            return std::nullopt;
        }
        errno = 0;
        std::ifstream stream(path, std::ios::binary);
        if (!stream.is_open()) failed = std::error_code(errno, std::generic_category());
        file.bytes.resize(before.first);
        stream.read(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
        const bool isWhole = !stream.fail() && stream.peek() == std::ifstream::traits_type::eof();
        if (failed || stream.bad()) {
            diagnostics.error(file.place(), reasonOf(failed));
            return std::nullopt;
        }
        if (isWhole && before == stateOf(path, failed)) return file;
    }
    diagnostics.error(file.place(), say::keepsChanging);
    return std::nullopt;
}

}  // namespace contentc
