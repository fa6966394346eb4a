#include "controls/common/Module.h"

#include <algorithm>
#include <array>

#include "controls/common/Version.h"

/// The functions that each module exports, and the version in its file.
namespace {

consteval auto fileVersion() {
    constexpr std::string_view end = ".0";
    std::array<char, controls::version.size() + end.size() + 1> text{};
    std::ranges::copy(end, std::ranges::copy(controls::version, text.begin()).out);
    return text;
}

[[gnu::section(".component.version"), gnu::used]] constinit const auto versionText = fileVersion();

}  // namespace

extern "C" {

[[gnu::visibility("default")]] void DllRegisterServer(platform::ModuleRegistrar& registrar) {
    registrar.registerClass(controls::componentModule.classId);
}

[[gnu::visibility("default")]] const platform::ComponentModule* DllGetClassObject() {
    return &controls::componentModule;
}

}  // extern "C"
