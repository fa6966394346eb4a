#include "fuzz/Target.h"
#include "platform/registry/RegFile.h"
#include "platform/registry/RegistryChanges.h"

/// A registry file, read, written and read again.
void fuzz::tryInput(std::string_view input) {
    auto registry = platform::parseRegText(input, "r.reg");
    if (!registry) {
        require(!registry.message().empty(), "a failure says why");
        return;
    }
    const std::string text = platform::formatRegText(*registry);
    auto again = platform::parseRegText(text, "r.reg");
    require(static_cast<bool>(again), "what is written can be read");
    require(platform::formatRegText(*again) == text, "a registry is read back as it was");
    auto key = registry->createKey(platform::HKEY_LOCAL_MACHINE, "Software\\K");
    require(key && key->setDword("n", 1) && key->queryDword("N") == 1U, "a number is found again");
}
