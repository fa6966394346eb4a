#include "formats/SectionTitles.h"

#include "formats/RecordFields.h"

namespace formats {
namespace {

constexpr std::size_t titleField = maxSectionTitle + 1;

}  // namespace

std::optional<SectionTitleRecord> decodeSectionTitle(std::string_view bytes) {
    if (bytes.size() < sectionTitleRecordSize) return std::nullopt;
    return SectionTitleRecord{std::string(readTextField(bytes.substr(0, titleField))),
                              readInteger<std::int32_t>(bytes, titleField)};
}

std::vector<SectionTitleRecord> decodeSectionTitles(std::string_view image) {
    std::vector<SectionTitleRecord> records;
    records.reserve(image.size() / sectionTitleRecordSize);
    while (const auto record = decodeSectionTitle(image)) {
        records.push_back(*record);
        image.remove_prefix(sectionTitleRecordSize);
    }
    return records;
}

std::optional<std::string> encodeSectionTitles(std::span<const SectionTitleRecord> records) {
    std::string image;
    image.reserve(records.size() * sectionTitleRecordSize);
    for (const SectionTitleRecord& record : records) {
        if (!fitsTextField(record.title, titleField)) return std::nullopt;
        appendTextField(image, record.title, titleField);
        appendInteger(image, record.pageId);
    }
    return image;
}

}  // namespace formats
