#include "controls/select/SelectComponent.h"
#include "platform/components/ComponentModule.h"

// The version that the file tells; the first three numbers are those of the `Version` property.
__attribute__((section(".kalyxo.version"), used)) const char versionText[] = "1.0.40.0";

extern "C" {

__attribute__((visibility("default"))) void DllRegisterServer(platform::ModuleRegistrar& registrar);
__attribute__((visibility("default"))) const platform::ComponentModule* DllGetClassObject();

void DllRegisterServer(platform::ModuleRegistrar& registrar) {
    registrar.registerClass(controls::select::classId);
}

const platform::ComponentModule* DllGetClassObject() {
    static constexpr platform::ComponentModule module{.classId = controls::select::classId,
                                                      .create = controls::select::createSelectComponent};
    return &module;
}

}  // extern "C"
