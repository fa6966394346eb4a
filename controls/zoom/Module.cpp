#include <array>

#include "controls/contract/HostMessages.h"
#include "controls/zoom/MoleculeZoom.h"
#include "platform/components/ComponentModule.h"

// The version that the file tells; the first three numbers are those that the component reports.
__attribute__((section(".kalyxo.version"), used)) const char versionText[] = "1.0.40.0";

extern "C" {

__attribute__((visibility("default"))) void DllRegisterServer(platform::ModuleRegistrar& registrar);
__attribute__((visibility("default"))) const platform::ComponentModule* DllGetClassObject();

void DllRegisterServer(platform::ModuleRegistrar& registrar) {
    registrar.registerClass(controls::zoom::classId);
}

const platform::ComponentModule* DllGetClassObject() {
    static constexpr std::array commands = {controls::showEnlargedView};
    static constexpr platform::ComponentModule module{.classId = controls::zoom::classId,
                                                      .create = controls::zoom::createMoleculeZoom,
                                                      .pagePart = {":/zoom/zoom.html", commands}};
    return &module;
}

}  // extern "C"
