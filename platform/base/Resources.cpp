#include "platform/base/Resources.h"

namespace platform {

namespace {

ResourceTable current;

}  // namespace

void SetResources(const ResourceTable& table) { current = table; }

const ResourceTable& Resources() { return current; }

std::string_view LoadString(UINT id) {
    for (const StringResource& row : current.strings) {
        if (row.id == id) return row.text;
    }
    return {};
}

}  // namespace platform
