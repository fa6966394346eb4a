#include "src/host/OwnMachine.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <system_error>

#include "platform/base/Resources.h"
#include "platform/files/FileHandle.h"
#include "platform/files/FolderLock.h"
#include "platform/files/ReplaceFile.h"
#include "platform/machine/NewMachine.h"
#include "platform/registry/RegFile.h"
#include "platform/text/CodePage1253.h"
#include "src/host/DriveLetters.h"
#include "src/host/MachineRepair.h"
#include "src/host/MachineSetup.h"
#include "src/resources/ResourceIds.h"
#include "src/state/Settings.h"

namespace kalyxo {

namespace fs = std::filesystem;

using Options = platform::NewMachineOptions;

using platform::Failure;
using platform::Machine;
using platform::MachineConfig;
using platform::ProgressStep;
using platform::Result;

namespace {

constexpr char kDiscLetter = 'D';
constexpr char kHostLetter = 'Z';

fs::path configFile(const fs::path& folder) { return folder / "machine.json"; }
fs::path registryFile(const fs::path& folder) { return folder / "registry.reg"; }

/// Whether anything of this name is there, also what cannot be read.
bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::symlink_status(path, ignored).type() != fs::file_type::not_found;
}

/// A message of the string table about a file or folder of the host.
Failure problem(platform::UINT message, const fs::path& path) {
    std::string text(platform::LoadString(message));
    return {text.replace(text.find("%s"), 2, platform::fromUtf8(path.string()))};
}

Failure notMade(const fs::path& path) { return problem(IDS_START_NOT_MADE, path); }
Failure notRead(const fs::path& path) { return problem(IDS_START_NOT_READ, path); }

/// What the file holds; `otherwise` when there is none.
template <typename T, typename Read>
Result<T> load(const fs::path& file, const Read& read, T otherwise) {
    if (!isThere(file)) return otherwise;
    Result<T> loaded = read(file);
    if (loaded) return loaded;
    std::fprintf(stderr, "kalyxo: %s\n", loaded.failure().message.c_str());
    const bool opens = static_cast<bool>(platform::FileHandle::openForReading(file));
    return opens ? problem(IDS_START_DAMAGED, file) : notRead(file);
}

platform::DriveConfig discDrive(const fs::path& content) {
    std::error_code ignored;
    return {platform::DriveType::cdrom, fs::absolute(content, ignored).lexically_normal()};
}

bool hasModules(const fs::path& folder) {
    const auto modules = platform::modulesIn(folder);
    return modules && !modules->empty();
}

MachineConfig newConfig(const Options& options) {
    MachineConfig config = options.config;
    if (!options.discFolder.empty()) config.drives[kDiscLetter] = discDrive(options.discFolder);
    config.drives[kHostLetter] = {platform::DriveType::fixed, "/"};
    return config;
}

Result<MachineConfig> loadConfig(const fs::path& folder, const Options& options) {
    const fs::path file = configFile(folder);
    const MachineConfig fresh = newConfig(options);
    if (!isThere(file) && !platform::saveMachineConfig(fresh, file)) return notMade(file);
    return load(
        file, [](const fs::path& path) { return platform::loadMachineConfig(path, DefaultMachineConfig()); },
        fresh);
}

bool sameContent(const fs::path& a, const fs::path& b) {
    platform::FileHandle first = platform::FileHandle::openForReading(a);
    platform::FileHandle second = platform::FileHandle::openForReading(b);
    const auto size = static_cast<std::size_t>(first.size());
    if (!first || !second || size != second.size()) return false;
    const auto bytes = first.readAll(size);
    return bytes && bytes == second.readAll(size);
}

/// A module that cannot be replaced stays; the program then tells of its version itself. One that is not
/// there at all must be made. False when that was cancelled.
Result<bool> updateModules(Machine& machine, const Options& options, const ProgressStep& step) {
    const auto target = machine.files().nativePath(options.modulesTo);
    if (!target) return true;
    const auto installed = platform::modulesIn(options.modulesFrom).value_or(std::vector<fs::path>());
    platform::deleteHalves(*target);
    std::uint64_t done = 0;
    for (const fs::path& module : installed) {
        if (!platform::GoesOn(step, done++, installed.size())) return false;
        const fs::path copy = *target / module.filename();
        if (!sameContent(module, copy) && !platform::copyFileOver(module, copy) && !isThere(copy))
            return notMade(copy);
    }
    return true;
}

void followPresent(MachineConfig& config, const InstalledFiles& installed, const PresentScreen& present) {
    config.screen = present.screen;
    config.printer = present.printer;
    for (const auto& [name, value] : present.metrics) config.metrics[name] = value;
    if (!installed.shared.empty()) config.drives[kDiscLetter] = discDrive(installed.shared);
    const auto disc = config.drives.find(kDiscLetter);
    std::error_code ignored;
    const bool there = disc != config.drives.end() &&
                       (disc->second.folder.is_relative() || fs::is_directory(disc->second.folder, ignored));
    if (!there && !installed.content.empty()) config.drives[kDiscLetter] = discDrive(installed.content);
}

void writeFirstLayout(Machine& machine) {
    const platform::ScreenConfig& screen = machine.screen();
    const auto layout =
        FirstLayout(platform::CRect::at(screen.left, screen.top, screen.width, screen.height));
    if (layout) WriteLayout(machine.registry(), *layout);
}

/// Makes what is missing of the machine; true when its registry is to be written. A machine that was never
/// finished gets its registry file last.
Result<bool> complete(Machine& machine, const Options& options) {
    const bool unfinished = !isThere(registryFile(machine.folder()));
    const auto repaired = RepairMachine(machine, options);
    if (!repaired) return notMade(repaired.failure().message);
    if (unfinished && !options.modulesFrom.empty() && !hasModules(options.modulesFrom))
        return notRead(options.modulesFrom);
    if (unfinished) writeFirstLayout(machine);
    return unfinished || *repaired;
}

/// The folder, made where there is none, and locked, so that one program makes the machine while others wait.
std::optional<platform::FolderLock> lockedFolder(const fs::path& folder) {
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    return fs::is_directory(folder, ignored) ? platform::FolderLock::wait(folder) : std::nullopt;
}

/// That of the environment, or else of the host's list of users.
fs::path homeFolder() {
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') return home;
    const passwd* const user = ::getpwuid(::getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

}  // namespace

fs::path OwnMachineFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && fs::path(data).is_absolute()) return fs::path(data) / "kalyxo";
    const fs::path home = homeFolder();
    return home.empty() ? fs::path() : home / ".local/share/kalyxo";
}

Result<std::unique_ptr<Machine>> OpenOwnMachine(const fs::path& folder, const InstalledFiles& installed,
                                                const PresentScreen& present,
                                                const std::vector<MountedMedium>& media,
                                                const ProgressStep& step) {
    const Options options = NewMachineOptions(installed.content, installed.modules, {});
    auto lock = lockedFolder(folder);
    if (!lock) return isThere(folder) ? notRead(folder) : notMade(folder.empty() ? "$HOME" : folder);
    auto config = loadConfig(folder, options);
    if (!config) return config.failure();
    auto registry = load(registryFile(folder), platform::loadRegFile, platform::Registry());
    if (!registry) return registry.failure();
    followPresent(*config, installed, present);
    const LetterMemory remembered = RememberedLetters(*registry);
    const LetterMemory letters = AddMediaDrives(*config, remembered, media);
    auto machine = std::make_unique<Machine>(folder, *std::move(config), *std::move(registry));
    const auto changed = complete(*machine, options);
    if (!changed) return changed.failure();
    const auto updated = updateModules(*machine, options, step);
    if (!updated) return updated.failure();
    if (!*updated) return std::unique_ptr<Machine>();
    // `flushRegistry` takes the same lock.
    lock.reset();
    if (letters != remembered) RememberLetters(machine->registry(), letters);
    if (*changed || letters != remembered) machine->flushRegistry();
    // If there is no earlier registry file and none can be written, the user is told now. With an earlier
    // file the program runs as far as it can.
    if (!isThere(registryFile(folder))) return notMade(registryFile(folder));
    return machine;
}

std::string AddDrive(platform::FileSystem& files, const fs::path& folder) {
    char letter = kHostLetter;
    while (letter > kDiscLetter && files.driveType(letter) != platform::DriveType::noRoot) --letter;
    auto drives = files.drives();
    std::erase_if(drives, [letter](const platform::Drive& drive) { return drive.letter == letter; });
    drives.push_back({letter, platform::DriveType::fixed, folder});
    files.setDrives(std::move(drives));
    return std::string{letter} + ":\\";
}

}  // namespace kalyxo
