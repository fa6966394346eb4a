#include <cstdlib>

#include "platform/automation/ControlModule.h"

using namespace platform;

namespace {
constexpr std::string_view id = "0A1B2C3D-0000-4000-8000-00000000EEEE";
}

extern "C" __attribute__((visibility("default"))) void DllRegisterServer(ModuleRegistrar& registrar) {
    registrar.registerClass(id);
}

extern "C" __attribute__((visibility("default"))) const ControlModule* DllGetClassObject() {
    static const ControlModule module{
        ControlModule::currentInterface + 1, id,
        [](ControlSite&, QWidget*) -> std::unique_ptr<Control> { std::abort(); }};
    return &module;
}
