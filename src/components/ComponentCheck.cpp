#include "src/components/ComponentCheck.h"

#include <array>
#include <optional>

#include "controls/contract/ClassIds.h"
#include "platform/components/ComponentLibrary.h"
#include "platform/machine/Machine.h"
#include "src/components/ClassIds.h"
#include "src/components/FileVersionNumbers.h"

namespace kalyxo {

namespace {

/// The longest path that is read from a registration, with its NUL.
constexpr std::size_t kMaxPath = 256;

/// A replaced library is renamed to end like this, because running programs may have it open.
constexpr std::string_view kReplacedSuffix = ".klyx";

/// The library whose replacement needs a new start of the program, and those whose replacement does not.
constexpr std::string_view kFrameworkLibrary = "mfc42.dll";
constexpr std::array<std::string_view, 3> kOtherLibraries = {"msvcrt.dll", "olepro32.dll", "oleaut32.dll"};

struct ComponentFile {
    std::string_view file;
    std::string_view classId;
};

constexpr std::array<ComponentFile, 4> kOtherComponents = {{{kSelectFile, controls::browseSelectionClass},
                                                            {kMolCtrlFile, controls::moleculeControllerClass},
                                                            {kKzZoomFile, controls::moleculeZoomClass},
                                                            {kDataAnalFile, controls::dataAnalyserClass}}};

std::string suppliedFile(std::string_view programFolder, std::string_view name) {
    return std::string(programFolder).append("\\ActiveX\\").append(name);
}

std::optional<std::string> registeredPath(platform::Machine& machine, std::string_view classId) {
    const std::string path = "CLSID\\{" + std::string(classId) + "}\\InprocServer32";
    const auto key = machine.registry().openKey(platform::HKEY_CLASSES_ROOT, path);
    return key ? key->queryString("", kMaxPath) : std::nullopt;
}

}  // namespace

void RegisterComponentFile(std::string_view programFolder, std::string_view file, bool fullPath) {
    platform::registerModule(fullPath ? std::string(file) : suppliedFile(programFolder, file));
}

ComponentCheck::Result ComponentCheck::Run() {
    updateSystemLibraries();
    CheckComponentFile(kPeriodTableFile, controls::periodicTableClass);
    if (m_nReplaceDecision == ReplaceDecision::no) return Result::refused;
    for (const ComponentFile& component : kOtherComponents) {
        CheckComponentFile(component.file, component.classId);
    }
    if (m_bComponentsRegistered) return Result::registered;
    return m_nReplaceDecision == ReplaceDecision::no ? Result::refused : Result::upToDate;
}

void ComponentCheck::updateSystemLibraries() {
    UpdateSystemLibrary(kFrameworkLibrary);
    const bool counted = m_bComponentsRegistered;
    for (const std::string_view name : kOtherLibraries) UpdateSystemLibrary(name);
    m_bComponentsRegistered = counted;
}

void ComponentCheck::UpdateSystemLibrary(std::string_view name) {
    const std::string supplied = suppliedFile(m_programFolder, name);
    if (GetFileVersionNumbers(m_machine, name) >= GetFileVersionNumbers(m_machine, supplied)) return;
    const std::string target = m_machine.systemFolder().append("\\").append(name);
    // The user is not told of a failure here; the next start tries again.
    m_machine.files().moveFile(target, target + std::string(kReplacedSuffix));
    m_machine.files().copyFile(supplied, target);
    RegisterComponentFile(m_programFolder, target, true);
    m_bComponentsRegistered = true;
}

void ComponentCheck::CheckComponentFile(std::string_view file, std::string_view classId) {
    const std::optional<std::string> registered = registeredPath(m_machine, classId);
    if (!registered) {
        // A component that was never registered is registered silently; the program need not be started
        // again.
        RegisterComponentFile(m_programFolder, file);
        return;
    }
    const FileVersionNumbers installed = GetFileVersionNumbers(m_machine, *registered);
    if (installed >= GetFileVersionNumbers(m_machine, suppliedFile(m_programFolder, file))) return;
    if (installed.high != 0 && userKeepsOlder()) return;
    m_nReplaceDecision = ReplaceDecision::yes;
    RegisterComponentFile(m_programFolder, file);
    m_bComponentsRegistered = true;
}

/// Asks the user once. The answer counts for all older components.
bool ComponentCheck::userKeepsOlder() {
    if (m_nReplaceDecision != ReplaceDecision::notAsked || m_replaceOlder()) return false;
    m_nReplaceDecision = ReplaceDecision::no;
    return true;
}

}  // namespace kalyxo
