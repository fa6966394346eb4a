#include <cstdlib>

#include "platform/components/ComponentModule.h"

using namespace platform;

namespace {
constexpr std::string_view id = "0A1B2C3D-0000-4000-8000-00000000EEEE";
}

extern "C" __attribute__((visibility("default"))) void DllRegisterServer(ModuleRegistrar& registrar) {
    registrar.registerClass(id);
}

extern "C" __attribute__((visibility("default"))) const ComponentModule* DllGetClassObject() {
    static const ComponentModule module{
        ComponentModule::currentInterface + 1, id,
        [](ComponentSite&, QWidget*) -> std::unique_ptr<Component> { std::abort(); }};
    return &module;
}
