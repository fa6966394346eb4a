#include "controls/molctrl/MoleculeController.h"
#include "platform/components/ComponentModule.h"

// The version that the file tells; the first three numbers are those that the component reports.
__attribute__((section(".kalyxo.version"), used)) const char versionText[] = "1.0.40.0";

extern "C" {

__attribute__((visibility("default"))) void DllRegisterServer(platform::ModuleRegistrar& registrar);
__attribute__((visibility("default"))) const platform::ComponentModule* DllGetClassObject();

void DllRegisterServer(platform::ModuleRegistrar& registrar) {
    registrar.registerClass(controls::molctrl::classId);
}

const platform::ComponentModule* DllGetClassObject() {
    static constexpr platform::ComponentModule module{.classId = controls::molctrl::classId,
                                                      .create = controls::molctrl::createMoleculeController,
                                                      .pagePart = {":/molctrl/controller.html", {}}};
    return &module;
}

}  // extern "C"
