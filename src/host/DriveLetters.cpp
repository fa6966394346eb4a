#include "src/host/DriveLetters.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

namespace kalyxo {

using platform::MachineConfig;
using platform::Registry;

namespace {

/// The place where the platform itself remembers letters.
constexpr std::string_view kMountedDevices = "System\\MountedDevices";
constexpr std::size_t kMaxFolderText = std::size_t{4} * 4096 + 1;
constexpr char kFirstLetter = 'D';
constexpr char kLastLetter = 'Z';

std::string valueName(char letter) { return std::string("\\DosDevices\\") + letter + ':'; }

/// Folders of the host may have any bytes; the registry's texts cannot.
std::string inAscii(std::string_view folder) {
    std::string result;
    for (const char c : folder) {
        if (c > ' ' && c <= '~' && c != '\\') {
            result += c;
            continue;
        }
        std::array<char, 8> escape{};
        std::snprintf(escape.data(), escape.size(), "\\%03o",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        result += escape.data();
    }
    return result;
}

bool isDrive(const MachineConfig& config, const std::filesystem::path& folder) {
    return std::ranges::any_of(config.drives,
                               [&folder](const auto& drive) { return drive.second.folder == folder; });
}

/// The first letter from D: on that is no drive and for which `allowed` holds.
template <typename Predicate>
std::optional<char> firstLetter(const MachineConfig& config, Predicate allowed) {
    for (char letter = kFirstLetter; letter <= kLastLetter; ++letter) {
        if (!config.drives.contains(letter) && allowed(letter)) return letter;
    }
    return std::nullopt;
}

std::optional<char> letterFor(const std::string& folder, const MachineConfig& config,
                              const LetterMemory& remembered) {
    const auto own = [&](char letter) {
        const auto at = remembered.find(letter);
        return at != remembered.end() && at->second == folder;
    };
    if (const auto letter = firstLetter(config, own)) return letter;
    const auto fresh = firstLetter(config, [&](char letter) { return !remembered.contains(letter); });
    return fresh ? fresh : firstLetter(config, [](char) { return true; });
}

/// Those with a letter of their own first, so that no new medium can take it.
std::vector<MountedMedium> inOrder(std::vector<MountedMedium> media, const LetterMemory& remembered) {
    std::ranges::stable_partition(media, [&](const MountedMedium& medium) {
        const std::string folder = inAscii(medium.folder.string());
        return std::ranges::any_of(remembered, [&](const auto& letter) { return letter.second == folder; });
    });
    return media;
}

}  // namespace

LetterMemory RememberedLetters(Registry& registry) {
    LetterMemory letters;
    const auto key = registry.openKey(platform::HKEY_LOCAL_MACHINE, kMountedDevices);
    for (char letter = kFirstLetter; key && letter <= kLastLetter; ++letter) {
        if (auto folder = key->queryString(valueName(letter), kMaxFolderText)) letters[letter] = *folder;
    }
    return letters;
}

void RememberLetters(Registry& registry, const LetterMemory& letters) {
    auto key = registry.createKey(platform::HKEY_LOCAL_MACHINE, kMountedDevices);
    for (const auto& [letter, folder] : letters) {
        if (key) key->setString(valueName(letter), folder);
    }
}

LetterMemory AddMediaDrives(MachineConfig& config, const LetterMemory& remembered,
                            const std::vector<MountedMedium>& media) {
    LetterMemory memory = remembered;
    for (const MountedMedium& medium : inOrder(media, remembered)) {
        if (isDrive(config, medium.folder)) continue;
        const std::string folder = inAscii(medium.folder.string());
        const auto letter = letterFor(folder, config, memory);
        if (!letter) break;
        config.drives[*letter] = {medium.type, medium.folder};
        memory[*letter] = folder;
    }
    return memory;
}

}  // namespace kalyxo
