#include "platform/components/ComponentLibrary.h"

#include <dlfcn.h>

#include <optional>
#include <string>
#include <utility>

#include "platform/machine/Machine.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// The maximum length of a path in a registration, with its NUL.
constexpr std::size_t maxPathBytes = 256;

std::string serverKey(std::string_view classId) {
    return "CLSID\\{" + std::string(classId) + "}\\InprocServer32";
}

class Registrar : public ModuleRegistrar {
  public:
    explicit Registrar(std::string_view modulePath) : modulePath_(modulePath) {}

    void registerClass(std::string_view classId) override {
        auto key = machine().registry().createKey(HKEY_CLASSES_ROOT, serverKey(classId));
        if (key) key->setString("", modulePath_);
    }

  private:
    std::string modulePath_;
};

/// The system's handle of a library. It is never closed: the program may hold code and types of the library,
/// and its components may live until the end of the run.
void* load(std::string_view dosPath) {
    const auto native = machine().files().nativePath(dosPath);
    return native ? ::dlopen(native->c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE) : nullptr;
}

template <class Function>
Function find(void* library, const char* name) {
    return library ? reinterpret_cast<Function>(::dlsym(library, name)) : nullptr;
}

bool serves(const ComponentModule* module, std::string_view classId) {
    return module && module->interfaceVersion == ComponentModule::currentInterface && module->create &&
           equalsNoCase(module->classId, classId);
}

}  // namespace

bool registerModule(std::string_view dosPath) {
    const auto call = find<RegisterServerFunction>(load(dosPath), registerServerName);
    if (!call) return false;
    machine().trace().record(TraceRegister{std::string(dosPath)});
    Registrar registrar(dosPath);
    call(registrar);
    // Written at once, since the program may end without writing its registry.
    machine().flushRegistry();
    return true;
}

const ComponentModule* loadRegisteredClass(std::string_view classId) {
    const auto key = machine().registry().openKey(HKEY_CLASSES_ROOT, serverKey(classId));
    const auto path = key ? key->queryString("", maxPathBytes) : std::nullopt;
    const auto classObject = find<ClassObjectFunction>(path ? load(*path) : nullptr, classObjectName);
    const ComponentModule* module = classObject ? classObject() : nullptr;
    return serves(module, classId) ? module : nullptr;
}

}  // namespace platform
