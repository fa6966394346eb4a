#include "src/components/ElementIndex.h"

#include "fuzz/Target.h"
#include "tests/support/TestDrives.h"

/// The index of the elements' pages.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto records = formats::decodeElementIndex(input);
    require(formats::encodeElementIndex(records) ==
                input.substr(0, records.size() * formats::elementPageRecordSize),
            "the records are written as they were read");
    drives.put("D:\\ptable.ndx", std::string(input));
    kalyxo::ElementIndex index;
    require(index.Load(drives.files, "D:\\"), "any file is an index");
    for (const auto& record : records)
        require(index.PageOf(record.elementKey).has_value(), "each key has a page");
    for (int key = -1; key < 258; ++key) (void)index.PageOf(static_cast<std::int16_t>(key));
}
