#include "fuzz/Target.h"
#include "platform/files/FileSystem.h"
#include "src/pages/EnlargedPages.h"
#include "src/pages/MoleculeCopy.h"
#include "src/pages/PagePreparer.h"
#include "tests/support/TestDrives.h"

/// A page of the data folder, prepared with its enlarged view. The input begins with the length of a line
/// before the page, in two bytes, so that anything can come to stand where long lines are cut.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    static const bool isReady = [] {
        drives.files.setContentFolder("D:\\");
        drives.put("C:\\secret.mol", "PLANTED");
        drives.put("D:\\m.mol", "molecule");
        drives.put("C:\\cache\\x", "");
        return true;
    }();
    require(isReady, "the drives are there");
    if (input.size() < 2) return;
    const auto byteAt = [&](std::size_t at) {
        return static_cast<std::size_t>(static_cast<unsigned char>(input[at]));
    };
    const std::size_t fill = (byteAt(0) + 256 * byteAt(1)) % 27000;
    drives.put("D:\\p.htm", std::string(fill, 'x').append(input.substr(2)));
    kalyxo::PageContents contents;
    const kalyxo::PagePreparer preparer(drives.files, "D:\\", "C:\\cache\\");
    const auto result = preparer.PreparePage("D:\\p.htm", "C:\\cache\\1.htm", contents);
    require(result == kalyxo::PrepareResult::prepared, "the page is prepared");
    const std::string copy = "C:\\cache\\" + std::string(kalyxo::kMoleculeCopy);
    require(!drives.has(copy) || drives.get(copy) == "molecule",
            "only the data folder's molecules are copied");
    require(!drives.has("C:\\cache\\" + std::string(kalyxo::kMoleculeCopy) + ".tmp"),
            "no half of a copy stays");
    for (const char* name : {"chime.mol", "bigvid.htm"})
        drives.files.deleteFile("C:\\cache\\" + std::string(name));
}
