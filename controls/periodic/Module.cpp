#include "controls/periodic/PeriodicComponent.h"
#include "platform/components/ComponentModule.h"

// The version that the file tells; the first three numbers are those that the component reports.
__attribute__((section(".kalyxo.version"), used)) const char versionText[] = "1.0.40.0";

extern "C" {

__attribute__((visibility("default"))) void DllRegisterServer(platform::ModuleRegistrar& registrar);
__attribute__((visibility("default"))) const platform::ComponentModule* DllGetClassObject();

void DllRegisterServer(platform::ModuleRegistrar& registrar) {
    registrar.registerClass(controls::periodic::classId);
}

const platform::ComponentModule* DllGetClassObject() {
    static constexpr platform::ComponentModule module{.classId = controls::periodic::classId,
                                                      .create = controls::periodic::createPeriodicComponent};
    return &module;
}

}  // extern "C"
