#include "src/bookmarks/BookmarkFile.h"

#include "fuzz/Target.h"
#include "src/bookmarks/BookmarkMerge.h"
#include "tests/support/TestDrives.h"

namespace {

/// The bookmarks when one program began with `before` and another has meanwhile written `theirs`.
void merge(const std::string& before, const std::string& theirs) {
    auto first = kalyxo::ReadBookmarks(before);
    auto others = kalyxo::ReadBookmarks(theirs);
    auto ours = kalyxo::ReadBookmarks(before);
    if (!first || !others) return;
    const auto merged = kalyxo::MergeBookmarks(*first, std::move(*others), std::move(*ours));
    fuzz::require(kalyxo::ReadBookmarks(kalyxo::WriteBookmarks(merged)).has_value(),
                  "merged bookmarks can be read");
}

}  // namespace

/// The file when the program starts, and when it ends.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto parts = partsOf(input, 2);
    if (const auto records = kalyxo::ReadBookmarks(parts[0])) {
        const std::string bytes = kalyxo::WriteBookmarks(*records);
        const auto again = kalyxo::ReadBookmarks(bytes);
        require(again && kalyxo::WriteBookmarks(*again) == bytes, "bookmarks are read back as they were");
    }
    merge(parts[0], parts[1]);
    drives.put("C:\\b\\b.dat", parts[0]);
    kalyxo::BookmarkList list;
    kalyxo::BookmarkFile file(drives.files, "C:\\b\\b.dat", drives.host("C:\\b"));
    file.Load(list);
    require(!list.Records().empty() && kalyxo::IsFolder(*list.Records().front()),
            "the list begins with a folder");
    drives.put("C:\\b\\b.dat", parts[1]);
    require(file.Save(list.Records()) == kalyxo::BookmarkSave::saved, "bookmarks are saved");
    require(kalyxo::ReadBookmarks(drives.get("C:\\b\\b.dat")).has_value(), "saved bookmarks can be read");
    std::filesystem::remove_all(drives.host("C:\\b"));
}
