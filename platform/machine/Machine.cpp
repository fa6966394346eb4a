#include "platform/machine/Machine.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <system_error>
#include <thread>

#include "platform/files/FolderLock.h"
#include "platform/files/ReplaceFile.h"
#include "platform/registry/RegFile.h"
#include "platform/registry/RegistryChanges.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr const char* configName = "machine.json";
constexpr const char* registryName = "registry.reg";

Machine* currentMachine = nullptr;

std::vector<Drive> drivesOf(const fs::path& folder, const MachineConfig& config) {
    std::vector<Drive> drives;
    drives.reserve(config.drives.size());
    for (const auto& [letter, drive] : config.drives)
        drives.push_back({letter, drive.type, folder / drive.folder});
    return drives;
}

bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::symlink_status(path, ignored).type() != fs::file_type::not_found;
}

std::string withoutLastSlash(std::string path) {
    if (path.ends_with('\\')) path.pop_back();
    return path;
}

}  // namespace

Result<std::unique_ptr<Machine>> Machine::open(const fs::path& folder, const MachineConfig& defaults) {
    std::error_code error;
    if (!fs::is_directory(folder, error)) return Failure{folder.string() + ": δεν υπάρχει τέτοιος φάκελος"};
    const fs::path configFile = folder / configName;
    Result<MachineConfig> config = defaults;
    if (isThere(configFile)) config = loadMachineConfig(configFile, defaults);
    if (!config) return config.failure();
    const fs::path registryFile = folder / registryName;
    Result<Registry> registry = Registry();
    if (isThere(registryFile)) registry = loadRegFile(registryFile);
    if (!registry) return registry.failure();
    return std::make_unique<Machine>(folder, *std::move(config), *std::move(registry));
}

Machine::Machine(const fs::path& folder, MachineConfig config, Registry registry)
    : folder_(fs::absolute(folder)),
      config_(std::move(config)),
      files_(drivesOf(folder_, config_)),
      registry_(std::move(registry)),
      written_(copyOf(registry_.tree())) {}

int Machine::metric(SystemMetric metric) const {
    if (metric == SM_CXSCREEN) return config_.screen.width;
    if (metric == SM_CYSCREEN) return config_.screen.height;
    const auto row =
        std::ranges::find_if(metricNames, [metric](const MetricName& name) { return name.metric == metric; });
    if (row == metricNames.end()) return 0;
    const auto given = config_.metrics.find(row->name);
    return given == config_.metrics.end() ? row->standard : given->second;
}

std::string Machine::tempFolder() const { return withoutLastSlash(config_.temp) + '\\'; }

std::string Machine::systemFolder() const { return withoutLastSlash(config_.system); }

std::optional<std::string> Machine::findLibrary(std::string_view name) const {
    if (name.find_first_of("\\/:") != name.npos) return std::string(name);
    const std::string& program = config_.program;
    for (const auto& folder : {program.substr(0, program.find_last_of('\\')), systemFolder()}) {
        std::string path = folder + '\\' + std::string(name);
        if (files_.exists(path)) return path;
    }
    return std::nullopt;
}

void Machine::sleep(std::uint32_t milliseconds) {
    trace_.record(TraceSleep{milliseconds});
    virtualNow_ += milliseconds;
    if (!virtualTime_) std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::uint64_t Machine::milliseconds() {
    if (virtualTime_) return virtualNow_ += static_cast<std::uint64_t>(config_.msPerStep);
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

bool Machine::flushRegistry() {
    const fs::path file = folder_ / registryName;
    const auto lock = FolderLock::wait(folder_);
    deleteHalves(folder_);
    const auto present = loadRegFile(file);
    RegistryNode tree = copyOf(present ? present->tree() : registry_.tree());
    carryOverChanges(written_, registry_.tree(), tree);
    if (!saveRegFile(Registry(std::move(tree)), file)) return false;
    written_ = copyOf(registry_.tree());
    return true;
}

Machine& machine() {
    if (!currentMachine) std::abort();
    return *currentMachine;
}

void setMachine(Machine* current) { currentMachine = current; }

bool hasMachine() { return currentMachine != nullptr; }

}  // namespace platform
