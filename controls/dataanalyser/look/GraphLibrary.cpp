#include <dlfcn.h>

#include <filesystem>

#include "controls/common/Version.h"
#include "controls/dataanalyser/look/GraphParts.h"

namespace controls::dataanalyser {

namespace {

/// The folder of the module that this code is part of.
std::filesystem::path ownFolder() {
    Dl_info module{};
    const bool found = ::dladdr(reinterpret_cast<const void*>(&ownFolder), &module) != 0;
    return found && module.dli_fname ? std::filesystem::path(module.dli_fname).parent_path()
                                     : std::filesystem::path();
}

}  // namespace

// The library is never unloaded, like the module of the component.
const GraphParts* loadGraphParts() {
    const std::filesystem::path file = ownFolder() / "kzdataangk-graphs.so";
    void* library = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!library) return nullptr;
    const auto parts = reinterpret_cast<GraphPartsSource>(::dlsym(library, graphPartsName));
    const GraphParts* loaded = parts ? parts() : nullptr;
    return loaded && loaded->version == controls::version ? loaded : nullptr;
}

}  // namespace controls::dataanalyser
