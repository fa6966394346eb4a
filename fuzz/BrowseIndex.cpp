#include "formats/BrowseIndex.h"

#include "controls/select/model/BrowseFolder.h"
#include "controls/select/model/BrowseSelection.h"
#include "fuzz/Target.h"
#include "tests/support/TestDrives.h"

namespace {

using controls::select::BrowseSelection;

void goThrough(BrowseSelection& selection, std::string_view filter) {
    for (std::int16_t code = 0; code < 9; ++code) {
        selection.setSection(code);
        selection.list().narrow(filter);
        if (const auto first = selection.list().firstMatch()) {
            fuzz::require(selection.list().contains(*first), "the first match is in the list");
            selection.choose(*first);
            (void)selection.list().spans(*first);
        }
    }
}

}  // namespace

/// What is typed into the filter, the index, and the file of page titles that stands in for a damaged one.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto parts = partsOf(input, 3);
    const auto decoded = formats::decodeBrowseIndex(parts[1]);
    if (decoded) {
        const auto image = formats::encodeBrowseIndex(*decoded);
        require(image && formats::decodeBrowseIndex(*image) == decoded, "an index is read back as it was");
    }
    drives.put("D:\\select.ndx", parts[1]);
    drives.put("D:\\react.dat", parts[2]);
    const controls::select::BrowseFolder folder(drives.files, "D:\\");
    BrowseSelection selection;
    selection.setIndex(folder.readIndex());
    goThrough(selection, parts[0]);
    goThrough(selection, "");
    for (const std::int32_t number : {0, 1, -1, 410000, 10001}) {
        selection.show({number, number});
        (void)selection.pageTitle(number);
        (void)folder.entryTitle(number);
        (void)folder.pageTitle(1, number);
    }
}
