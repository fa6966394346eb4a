#include "formats/SectionTitles.h"

#include "formats/RecordFields.h"

namespace formats {
namespace {

constexpr std::size_t kTitleField = kMaxSectionTitle + 1;

}  // namespace

std::optional<SectionTitleRecord> decodeSectionTitle(std::string_view bytes) {
    if (bytes.size() < kSectionTitleRecordSize) return std::nullopt;
    return SectionTitleRecord{std::string(readTextField(bytes.substr(0, kTitleField))),
                              readInteger<std::int32_t>(bytes, kTitleField)};
}

std::vector<SectionTitleRecord> decodeSectionTitles(std::string_view image) {
    std::vector<SectionTitleRecord> records;
    records.reserve(image.size() / kSectionTitleRecordSize);
    while (const auto record = decodeSectionTitle(image)) {
        records.push_back(*record);
        image.remove_prefix(kSectionTitleRecordSize);
    }
    return records;
}

std::optional<std::string> encodeSectionTitles(std::span<const SectionTitleRecord> records) {
    std::string image;
    image.reserve(records.size() * kSectionTitleRecordSize);
    for (const SectionTitleRecord& record : records) {
        if (!fitsTextField(record.title, kTitleField)) return std::nullopt;
        appendTextField(image, record.title, kTitleField);
        appendInteger(image, record.pageId);
    }
    return image;
}

}  // namespace formats
