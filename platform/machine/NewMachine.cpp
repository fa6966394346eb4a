#include "platform/machine/NewMachine.h"

#include <system_error>

#include "platform/files/FileSystem.h"
#include "platform/files/ReplaceFile.h"
#include "platform/machine/Machine.h"
#include "platform/registry/RegFile.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

std::string parentFolder(const std::string& dosPath) { return dosPath.substr(0, dosPath.find_last_of('\\')); }

Failure cannotMake(const std::string& what) { return {what + ": δεν δημιουργείται"}; }

MachineConfig completeConfig(const NewMachineOptions& options) {
    MachineConfig config = options.config;
    for (const auto& row : metricNames) config.metrics.try_emplace(std::string(row.name), row.standard);
    if (!options.discFolder.empty()) {
        std::error_code ignored;
        config.drives['D'] = {DriveType::cdrom, fs::absolute(options.discFolder, ignored).lexically_normal()};
    }
    return config;
}

/// Makes the host folders that are drives inside the machine folder.
Result<void> makeDriveFolders(const fs::path& folder, const MachineConfig& config) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) return cannotMake(folder.string());
    for (const auto& [letter, drive] : config.drives) {
        if (drive.folder.is_absolute()) continue;
        fs::create_directories(folder / drive.folder, error);
        if (error) return cannotMake((folder / drive.folder).string());
    }
    return {};
}

Result<void> writeFile(const FileSystem& files, const NewMachineFile& file) {
    if (!files.createFolders(parentFolder(file.path)) || !replaceFile(files, file.path, file.content)) {
        return cannotMake(toUtf8(file.path));
    }
    return {};
}

Result<void> makeFolders(Machine& machine, const NewMachineOptions& options) {
    std::vector<std::string> folders = {machine.tempFolder(), machine.systemFolder()};
    if (!options.modulesTo.empty()) folders.push_back(options.modulesTo);
    for (const auto& folder : folders) {
        if (!machine.files().createFolders(folder)) return cannotMake(toUtf8(folder));
    }
    return {};
}

Result<void> copyModules(const FileSystem& files, const NewMachineOptions& options,
                         const ProgressStep& step) {
    if (options.modulesFrom.empty()) return {};
    const auto target = files.nativePath(options.modulesTo);
    const auto modules = modulesIn(options.modulesFrom);
    if (!modules || modules->empty())
        return Failure{options.modulesFrom.string() + ": δεν περιέχει τα μέρη του προγράμματος"};
    std::uint64_t copied = 0;
    for (const fs::path& module : *modules) {
        if (!GoesOn(step, copied++, modules->size())) return Failure{module.string() + ": ακυρώθηκε"};
        if (!target || !copyFileOver(module, *target / module.filename())) {
            return Failure{module.string() + ": δεν αντιγράφεται στον φάκελο " + toUtf8(options.modulesTo)};
        }
    }
    return {};
}

void fillSettings(Registry& registry, const NewMachineOptions& options) {
    if (options.settingsKey.empty()) return;
    auto key = registry.createKey(HKEY_LOCAL_MACHINE, options.settingsKey);
    if (!key) return;
    for (const auto& [name, value] : options.settings) {
        if (const auto* text = std::get_if<std::string>(&value)) {
            key->setString(name, *text);
        } else {
            key->setDword(name, std::get<std::uint32_t>(value));
        }
    }
}

void registerComponents(Registry& registry, const NewMachineOptions& options) {
    for (const auto& component : options.components) {
        auto key =
            registry.createKey(HKEY_CLASSES_ROOT, "CLSID\\{" + component.classId + "}\\InprocServer32");
        if (key) key->setString("", options.modulesTo + '\\' + component.file);
    }
}

Result<void> fillDrives(Machine& machine, const NewMachineOptions& options, const ProgressStep& step) {
    const NewMachineFile program{machine.programPath(), std::string(programPlaceholder)};
    if (auto done = writeFile(machine.files(), program); !done) return done;
    if (auto done = makeFolders(machine, options); !done) return done;
    if (auto done = copyModules(machine.files(), options, step); !done) return done;
    for (const auto& file : options.files) {
        if (auto done = writeFile(machine.files(), file); !done) return done;
    }
    return {};
}

}  // namespace

std::optional<std::vector<fs::path>> modulesIn(const fs::path& folder) {
    std::vector<fs::path> modules;
    std::error_code error;
    std::error_code ignored;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string extension = it->path().extension().string();
        const bool isModule = equalsNoCase(extension, ".ocx") || equalsNoCase(extension, ".so");
        if (isModule && it->is_regular_file(ignored)) modules.push_back(it->path());
    }
    return error ? std::nullopt : std::optional(std::move(modules));
}

Result<void> makeMachine(const fs::path& folder, const NewMachineOptions& options, const ProgressStep& step) {
    std::error_code error;
    if (!options.discFolder.empty() && !fs::is_directory(options.discFolder, error)) {
        return Failure{options.discFolder.string() + ": δεν υπάρχει τέτοιος φάκελος"};
    }
    const MachineConfig config = completeConfig(options);
    if (auto done = makeDriveFolders(folder, config); !done) return done;
    if (!saveMachineConfig(config, folder / "machine.json"))
        return cannotMake((folder / "machine.json").string());

    Machine machine(folder, config, Registry());
    if (auto done = fillDrives(machine, options, step); !done) return done;
    fillSettings(machine.registry(), options);
    registerComponents(machine.registry(), options);
    const fs::path registryFile = folder / "registry.reg";
    if (!saveRegFile(machine.registry(), registryFile)) return cannotMake(registryFile.string());
    return {};
}

}  // namespace platform
