#include "formats/ElementIndex.h"

#include "formats/RecordFields.h"

namespace formats {

std::vector<ElementPageRecord> decodeElementIndex(std::string_view image) {
    std::vector<ElementPageRecord> records;
    records.reserve(image.size() / elementPageRecordSize);
    for (; image.size() >= elementPageRecordSize; image.remove_prefix(elementPageRecordSize)) {
        records.push_back({readInteger<std::uint8_t>(image, 0), readInteger<std::int32_t>(image, 1)});
    }
    return records;
}

std::string encodeElementIndex(std::span<const ElementPageRecord> records) {
    std::string image;
    image.reserve(records.size() * elementPageRecordSize);
    for (const ElementPageRecord& record : records) {
        appendInteger(image, record.elementKey);
        appendInteger(image, record.pageId);
    }
    return image;
}

}  // namespace formats
