#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "fuzz/Target.h"
#include "src/search/HitTitles.h"
#include "tests/support/TestDrives.h"

/// A number, a file of page titles and a title list.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto parts = partsOf(input, 3);
    const auto records = formats::decodeSectionTitles(parts[1]);
    require(records.size() == parts[1].size() / formats::sectionTitleRecordSize,
            "each whole record is a title");
    std::int32_t code = 0;
    for (const char c : parts[0].substr(0, 9)) code = code * 10 + (c & 0xF) % 10;
    (void)formats::entryTitle(parts[2], code);
    drives.put("D:\\react.dat", parts[1]);
    drives.put("D:\\elem.ttl", parts[2]);
    kalyxo::HitTitles titles(drives.files, "D:\\");
    for (const auto& record : records) {
        require(titles.LookUpPageTitle("react", record.pageId).size() <= formats::maxSectionTitle + 1,
                "a title is no longer than its field");
    }
    for (const std::int32_t sign : {1, -1}) {
        (void)titles.LookUpEntryTitle(code * sign);
        (void)titles.MakeHitTexts({code, code * sign, static_cast<std::int16_t>(code % 9)});
    }
}
