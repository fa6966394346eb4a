#include "src/pages/GlossaryText.h"

#include "fuzz/Target.h"
#include "tests/support/TestDrives.h"

/// The address of a link, and a glossary file.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto parts = partsOf(input, 2);
    (void)kalyxo::IsEnlargedViewLink(parts[0]);
    if (const auto name = kalyxo::GlossaryFile(parts[0])) {
        require(name->find_first_of("\\/:") == name->npos, "a term's file lies in the glossary folder");
    }
    drives.put("D:\\g.htm", parts[1]);
    if (const auto text = kalyxo::ReadDefinition(drives.files, "D:\\g.htm")) {
        require(text->size() >= 5, "a definition has five characters");
        require(text->find('\0') == text->npos, "a definition has no NUL");
    }
}
