#include "tools/contentc/render/MadeFiles.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace contentc {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::hours keptFor{24 * 90};

}  // namespace

void Fingerprint::add(std::string_view bytes) {
    constexpr std::uint64_t prime = 0x100000001B3;
    const auto mix = [](std::uint64_t value, unsigned char byte) { return (value ^ byte) * prime; };
    for (const char c : bytes) {
        first_ = mix(first_, static_cast<unsigned char>(c));
        second_ = mix(second_, static_cast<unsigned char>(~c));
    }
    // The end is mixed in too, so that two texts in a row give another value than one text of both.
    first_ = mix(first_, 0xFF) + bytes.size();
}

std::string Fingerprint::text() const {
    char digits[33];
    std::snprintf(digits, sizeof digits, "%016llx%016llx", static_cast<unsigned long long>(first_),
                  static_cast<unsigned long long>(second_));
    return digits;
}

fs::path MadeFiles::pathOf(const Fingerprint& source, std::string_view extension) const {
    return folder_ / source.text().append(extension);
}

bool MadeFiles::has(const fs::path& path) {
    std::error_code failed;
    if (!fs::is_regular_file(path, failed)) return false;
    fs::last_write_time(path, fs::file_time_type::clock::now(), failed);
    return true;
}

fs::path MadeFiles::partOf(const fs::path& path) const {
    std::error_code failed;
    fs::create_directories(folder_, failed);
    if (failed) return {};
    fs::path part = folder_ / (path.stem().string() + ".part" + std::to_string(::getpid()));
    return part += path.extension();
}

bool MadeFiles::keep(const fs::path& part, const fs::path& path) {
    std::error_code failed;
    fs::rename(part, path, failed);
    return !failed;
}

void MadeFiles::deleteOld() const {
    const auto oldest = fs::file_time_type::clock::now() - keptFor;
    std::error_code failed;
    for (fs::directory_iterator it(folder_, failed), end; !failed && it != end; it.increment(failed)) {
        std::error_code ignored;
        if (it->last_write_time(ignored) < oldest && !ignored) fs::remove(it->path(), ignored);
    }
}

fs::path userMadeFilesFolder() {
    const char* cache = std::getenv("XDG_CACHE_HOME");
    if (cache != nullptr && fs::path(cache).is_absolute()) return fs::path(cache) / "kalyxo/contentc";
    const char* home = std::getenv("HOME");
    const fs::path base =
        home != nullptr && *home != '\0' ? fs::path(home) / ".cache" : fs::temp_directory_path();
    return base / "kalyxo/contentc";
}

}  // namespace contentc
