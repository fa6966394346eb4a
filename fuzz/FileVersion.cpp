#include "platform/files/FileVersion.h"

#include "fuzz/Target.h"
#include "tests/support/TestFolder.h"

/// A component module with its version.
void fuzz::tryInput(std::string_view input) {
    static const TestFolder folder;
    const auto text = platform::fileVersionText(folder.write("module", input));
    require(!text || (text->size() < 256 && text->find('\0') == text->npos), "a version is a short text");
}
