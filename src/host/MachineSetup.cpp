#include "src/host/MachineSetup.h"

#include "controls/contract/ClassIds.h"
#include "src/components/ClassIds.h"
#include "src/state/Settings.h"

namespace kalyxo {

namespace {

const std::string kProgramFolder = "C:\\Kalyxo";
const std::string kIniText =
    "[Settings]\r\n"
    "DataPath=D:\\\r\n"
    "Bookmark=C:\\Kalyxo\\bookmark.dat\r\n";

std::vector<platform::NewMachineComponent> allComponents() {
    const auto component = [](std::string_view file, std::string_view classId) {
        return platform::NewMachineComponent{std::string(file), std::string(classId)};
    };
    return {component(kPeriodTableFile, controls::periodicTableClass),
            component(kSelectFile, controls::browseSelectionClass),
            component(kDataAnalFile, controls::dataAnalyserClass),
            component(kMolCtrlFile, controls::moleculeControllerClass),
            component(kKzZoomFile, controls::moleculeZoomClass)};
}

}  // namespace

platform::MachineConfig DefaultMachineConfig() {
    platform::MachineConfig config;
    config.program = kProgramFolder + "\\kalyxo.exe";
    config.sites = {"kalyxo.example", "orvane.example"};
    return config;
}

platform::NewMachineOptions NewMachineOptions(const std::filesystem::path& content,
                                              const std::filesystem::path& modules, MachineSetup setup) {
    platform::NewMachineOptions options;
    options.config = DefaultMachineConfig();
    options.discFolder = content;
    options.modulesFrom = modules;
    options.modulesTo = kProgramFolder + "\\ActiveX";
    options.settingsKey = SettingsKeyPath();
    if (!setup.outside) options.settings.emplace_back("Directory", kProgramFolder);
    if (setup.bare) return options;
    options.components = allComponents();
    options.files.push_back({kProgramFolder + "\\cset.ini", kIniText});
    return options;
}

}  // namespace kalyxo
