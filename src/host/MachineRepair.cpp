#include "src/host/MachineRepair.h"

#include <string>
#include <string_view>
#include <system_error>

#include "platform/files/ReplaceFile.h"
#include "platform/text/CodePage1253.h"

namespace kalyxo {

namespace fs = std::filesystem;

using Options = platform::NewMachineOptions;

using platform::Failure;
using platform::FileSystem;
using platform::Machine;
using platform::Registry;
using platform::Result;

namespace {

/// No text file that a new machine has is longer.
constexpr std::size_t kMaxTextBytes = std::size_t{64} * 1024;
constexpr std::size_t kMaxValueBytes = 4096;

/// In the words of the host, where the user has to look for it.
Failure notMade(const FileSystem& files, const std::string& dosPath) {
    const auto native = files.nativePath(dosPath);
    return {native ? native->string() : platform::toUtf8(dosPath)};
}

/// The host folders that are drives inside the machine folder.
Result<void> makeDriveFolders(const Machine& machine) {
    for (const auto& [letter, drive] : machine.config().drives) {
        const fs::path folder = machine.folder() / drive.folder;
        std::error_code error;
        if (drive.folder.is_relative()) fs::create_directories(folder, error);
        if (error) return Failure{folder.string()};
    }
    return {};
}

Result<void> makeFolders(Machine& machine, const Options& options) {
    for (const std::string& folder : {machine.tempFolder(), machine.systemFolder(), options.modulesTo}) {
        if (!machine.files().createFolders(folder)) return notMade(machine.files(), folder);
    }
    return {};
}

std::string withCrLf(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\n' && !result.ends_with('\r')) result += '\r';
        result += c;
    }
    return result;
}

/// That it cannot be written does not matter: the program then asks for what it does not find.
void mendLineEnds(const FileSystem& files, const std::string& path) {
    const auto text = files.readAll(path, kMaxTextBytes);
    if (!text) return;
    const std::string mended = withCrLf(*text);
    if (mended != *text) platform::replaceFile(files, path, mended);
}

Result<void> makeFile(const FileSystem& files, const std::string& path, std::string_view content) {
    if (!files.isMissing(path)) return {};
    const bool made =
        files.createFolders(path.substr(0, path.rfind('\\'))) && platform::replaceFile(files, path, content);
    return made ? Result<void>() : notMade(files, path);
}

Result<void> makeFiles(Machine& machine, const Options& options) {
    auto done = makeFile(machine.files(), machine.programPath(), platform::programPlaceholder);
    for (const auto& file : options.files) {
        if (done) done = makeFile(machine.files(), file.path, file.content);
        mendLineEnds(machine.files(), file.path);
    }
    return done;
}

/// Sets a text that is missing; whether it was.
bool setMissing(Registry& registry, platform::RegistryRoot root, const std::string& path,
                std::string_view name, const std::string& text) {
    const auto known = registry.openKey(root, path);
    if (known && known->queryString(name, kMaxValueBytes)) return false;
    auto key = registry.createKey(root, path);
    return key && key->setString(name, text);
}

bool fillRegistry(Registry& registry, const Options& options) {
    bool changed = false;
    for (const auto& [name, value] : options.settings) {
        const auto* const text = std::get_if<std::string>(&value);
        if (text && setMissing(registry, platform::HKEY_LOCAL_MACHINE, options.settingsKey, name, *text))
            changed = true;
    }
    for (const auto& component : options.components) {
        const std::string path = "CLSID\\{" + component.classId + "}\\InprocServer32";
        if (setMissing(registry, platform::HKEY_CLASSES_ROOT, path, "",
                       options.modulesTo + '\\' + component.file))
            changed = true;
    }
    return changed;
}

}  // namespace

Result<bool> RepairMachine(Machine& machine, const Options& options) {
    if (auto done = makeDriveFolders(machine); !done) return done.failure();
    if (auto done = makeFolders(machine, options); !done) return done.failure();
    if (auto done = makeFiles(machine, options); !done) return done.failure();
    return fillRegistry(machine.registry(), options);
}

}  // namespace kalyxo
