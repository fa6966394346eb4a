#include "src/host/OwnMachine.h"

#include <cstdlib>
#include <system_error>

#include "platform/files/FileHandle.h"
#include "platform/files/FolderLock.h"
#include "platform/files/ReplaceFile.h"
#include "platform/machine/NewMachine.h"
#include "platform/registry/RegFile.h"
#include "src/host/DriveLetters.h"
#include "src/host/MachineSetup.h"

namespace kalyxo {

namespace fs = std::filesystem;

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

/// The registry is written last, so a machine without one was never finished; and the user may delete either
/// file to have it made anew.
bool isFinished(const fs::path& folder) {
    return isThere(configFile(folder)) && isThere(registryFile(folder));
}

Result<void> finish(const fs::path& folder, const InstalledFiles& installed, const MachineConfig& config,
                    const ProgressStep& step) {
    platform::NewMachineOptions options = NewMachineOptions(installed.content, installed.modules, {});
    options.config = config;
    options.config.drives[kHostLetter] = {platform::DriveType::fixed, "/"};
    return platform::makeMachine(folder, options, step);
}

/// One program makes the machine; another that starts meanwhile waits, and finds it made.
Result<void> makeUnlessFinished(const fs::path& folder, const InstalledFiles& installed,
                                const ProgressStep& step) {
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    const auto lock = platform::FolderLock::wait(folder);
    if (isFinished(folder)) return {};
    MachineConfig known = DefaultMachineConfig();
    if (isThere(configFile(folder))) {
        auto config = platform::loadMachineConfig(configFile(folder), DefaultMachineConfig());
        if (!config) return config.failure();
        known = *std::move(config);
    }
    return finish(folder, installed, known, step);
}

bool sameContent(const fs::path& a, const fs::path& b) {
    platform::FileHandle first = platform::FileHandle::openForReading(a);
    platform::FileHandle second = platform::FileHandle::openForReading(b);
    const auto size = static_cast<std::size_t>(first.size());
    if (!first || !second || size != second.size()) return false;
    const auto bytes = first.readAll(size);
    return bytes && bytes == second.readAll(size);
}

/// A module that cannot be replaced stays; the program then tells of its version itself. False when that was
/// cancelled.
bool updateModules(Machine& machine, const fs::path& modules, const ProgressStep& step) {
    const auto target = machine.files().nativePath(NewMachineOptions({}, {}, {}).modulesTo);
    if (!target || modules.empty()) return true;
    const auto installed = platform::modulesIn(modules).value_or(std::vector<fs::path>());
    std::uint64_t done = 0;
    for (const fs::path& module : installed) {
        if (!platform::GoesOn(step, done++, installed.size())) return false;
        const fs::path copy = *target / module.filename();
        if (!sameContent(module, copy)) platform::copyFileOver(module, copy);
    }
    return true;
}

void followPresent(MachineConfig& config, const InstalledFiles& installed, const PresentScreen& present) {
    config.screen = present.screen;
    config.printer = present.printer;
    for (const auto& [name, value] : present.metrics) config.metrics[name] = value;
    const auto disc = config.drives.find(kDiscLetter);
    std::error_code ignored;
    if (disc == config.drives.end() || installed.content.empty()) return;
    if (disc->second.folder.is_absolute() && !fs::is_directory(disc->second.folder, ignored)) {
        disc->second.folder = installed.content;
    }
}

}  // namespace

fs::path OwnMachineFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && fs::path(data).is_absolute()) return fs::path(data) / "kalyxo";
    const char* home = std::getenv("HOME");
    return home == nullptr || *home == '\0' ? fs::path() : fs::path(home) / ".local/share/kalyxo";
}

Result<std::unique_ptr<Machine>> OpenOwnMachine(const fs::path& folder, const InstalledFiles& installed,
                                                const PresentScreen& present,
                                                const std::vector<MountedMedium>& media,
                                                const ProgressStep& step) {
    if (const auto made = makeUnlessFinished(folder, installed, step); !made) return made.failure();
    auto config = platform::loadMachineConfig(configFile(folder), DefaultMachineConfig());
    if (!config) return config.failure();
    auto registry = platform::loadRegFile(registryFile(folder));
    if (!registry) return registry.failure();
    followPresent(*config, installed, present);
    const LetterMemory remembered = RememberedLetters(*registry);
    const LetterMemory letters = AddMediaDrives(*config, remembered, media);
    auto machine = std::make_unique<Machine>(folder, *std::move(config), *std::move(registry));
    if (letters != remembered) {
        RememberLetters(machine->registry(), letters);
        machine->flushRegistry();
    }
    if (!updateModules(*machine, installed.modules, step)) return platform::Failure{"cancelled"};
    return machine;
}

}  // namespace kalyxo
