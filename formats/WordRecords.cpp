#include "formats/WordRecords.h"

#include "formats/RecordFields.h"

namespace formats {
namespace {

constexpr std::size_t kGroupField = 4;
constexpr std::size_t kAlternativeField = kAlternativeRecordSize - kGroupField;
static_assert(kMaxAlternative + 1 == kAlternativeField && kMaxIndexedWord + 1 == kOccurrenceWordField);

constexpr std::size_t kPageIdOffset = kOccurrenceWordField;
constexpr std::size_t kItemCodeOffset = kPageIdOffset + 4;
constexpr std::size_t kSectionCodeOffset = kItemCodeOffset + 4;

/// Calls `take` with the bytes of each whole record.
template <typename Take>
void forEachRecord(std::string_view image, std::size_t size, Take take) {
    for (; image.size() >= size; image.remove_prefix(size)) take(image.substr(0, size));
}

}  // namespace

std::vector<std::string> decodeWordIndex(std::string_view image) {
    std::vector<std::string> words;
    words.reserve(image.size() / kWordIndexRecordSize);
    forEachRecord(image, kWordIndexRecordSize,
                  [&](std::string_view record) { words.emplace_back(readTextField(record)); });
    return words;
}

std::int32_t alternativeGroup(std::string_view bytes) { return readInteger<std::int32_t>(bytes, 0); }

std::string_view alternativeWord(std::string_view bytes) {
    return readTextField(bytes.substr(kGroupField, kAlternativeField));
}

std::vector<FirstLetterRecord> decodeFirstLetters(std::string_view image) {
    std::vector<FirstLetterRecord> records;
    records.reserve(image.size() / kFirstLetterRecordSize);
    forEachRecord(image, kFirstLetterRecordSize, [&](std::string_view record) {
        records.push_back({record[0], readInteger<std::uint32_t>(record, 1)});
    });
    return records;
}

std::optional<OccurrenceRecord> decodeOccurrence(std::string_view bytes) {
    if (bytes.size() < kOccurrenceRecordSize) return std::nullopt;
    return OccurrenceRecord{std::string(readTextField(bytes.substr(0, kOccurrenceWordField))),
                            readInteger<std::int32_t>(bytes, kPageIdOffset),
                            readInteger<std::int32_t>(bytes, kItemCodeOffset),
                            readInteger<std::int16_t>(bytes, kSectionCodeOffset)};
}

std::optional<std::string> encodeWordIndex(std::span<const std::string> words) {
    std::string image;
    image.reserve(words.size() * kWordIndexRecordSize);
    for (const std::string& word : words) {
        if (!fitsTextField(word, kWordIndexRecordSize)) return std::nullopt;
        appendTextField(image, word, kWordIndexRecordSize);
    }
    return image;
}

std::optional<std::string> encodeAlternatives(std::span<const AlternativeRecord> records) {
    std::string image;
    image.reserve(records.size() * kAlternativeRecordSize);
    for (const AlternativeRecord& record : records) {
        if (!fitsTextField(record.word, kAlternativeField)) return std::nullopt;
        appendInteger(image, record.groupId);
        appendTextField(image, record.word, kAlternativeField);
    }
    return image;
}

std::string encodeFirstLetters(std::span<const FirstLetterRecord> records) {
    std::string image;
    image.reserve(records.size() * kFirstLetterRecordSize);
    for (const FirstLetterRecord& record : records) {
        image.push_back(record.letter);
        appendInteger(image, record.firstWord);
        image.append(3, '\0');
    }
    return image;
}

std::optional<std::string> encodeOccurrences(std::span<const OccurrenceRecord> records) {
    std::string image;
    image.reserve(records.size() * kOccurrenceRecordSize);
    for (const OccurrenceRecord& record : records) {
        if (!fitsTextField(record.word, kOccurrenceWordField)) return std::nullopt;
        appendTextField(image, record.word, kOccurrenceWordField);
        appendInteger(image, record.pageId);
        appendInteger(image, record.itemCode);
        appendInteger(image, record.sectionCode);
        image.push_back('\0');
    }
    return image;
}

}  // namespace formats
