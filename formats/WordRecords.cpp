#include "formats/WordRecords.h"

#include "formats/RecordFields.h"

namespace formats {
namespace {

constexpr std::size_t groupField = 4;
constexpr std::size_t alternativeField = alternativeRecordSize - groupField;
static_assert(maxAlternative + 1 == alternativeField && maxIndexedWord + 1 == occurrenceWordField);

constexpr std::size_t pageIdOffset = occurrenceWordField;
constexpr std::size_t itemCodeOffset = pageIdOffset + 4;
constexpr std::size_t sectionCodeOffset = itemCodeOffset + 4;

/// Calls `take` with the bytes of each whole record.
template <typename Take>
void forEachRecord(std::string_view image, std::size_t size, Take take) {
    for (; image.size() >= size; image.remove_prefix(size)) take(image.substr(0, size));
}

}  // namespace

std::vector<std::string> decodeWordIndex(std::string_view image) {
    std::vector<std::string> words;
    words.reserve(image.size() / wordIndexRecordSize);
    forEachRecord(image, wordIndexRecordSize,
                  [&](std::string_view record) { words.emplace_back(readTextField(record)); });
    return words;
}

std::int32_t alternativeGroup(std::string_view bytes) { return readInteger<std::int32_t>(bytes, 0); }

std::string_view alternativeWord(std::string_view bytes) {
    return readTextField(bytes.substr(groupField, alternativeField));
}

std::vector<FirstLetterRecord> decodeFirstLetters(std::string_view image) {
    std::vector<FirstLetterRecord> records;
    records.reserve(image.size() / firstLetterRecordSize);
    forEachRecord(image, firstLetterRecordSize, [&](std::string_view record) {
        records.push_back({record[0], readInteger<std::uint32_t>(record, 1)});
    });
    return records;
}

std::optional<OccurrenceRecord> decodeOccurrence(std::string_view bytes) {
    if (bytes.size() < occurrenceRecordSize) return std::nullopt;
    return OccurrenceRecord{std::string(readTextField(bytes.substr(0, occurrenceWordField))),
                            readInteger<std::int32_t>(bytes, pageIdOffset),
                            readInteger<std::int32_t>(bytes, itemCodeOffset),
                            readInteger<std::int16_t>(bytes, sectionCodeOffset)};
}

std::optional<std::string> encodeWordIndex(std::span<const std::string> words) {
    std::string image;
    image.reserve(words.size() * wordIndexRecordSize);
    for (const std::string& word : words) {
        if (!fitsTextField(word, wordIndexRecordSize)) return std::nullopt;
        appendTextField(image, word, wordIndexRecordSize);
    }
    return image;
}

std::optional<std::string> encodeAlternatives(std::span<const AlternativeRecord> records) {
    std::string image;
    image.reserve(records.size() * alternativeRecordSize);
    for (const AlternativeRecord& record : records) {
        if (!fitsTextField(record.word, alternativeField)) return std::nullopt;
        appendInteger(image, record.groupId);
        appendTextField(image, record.word, alternativeField);
    }
    return image;
}

std::string encodeFirstLetters(std::span<const FirstLetterRecord> records) {
    std::string image;
    image.reserve(records.size() * firstLetterRecordSize);
    for (const FirstLetterRecord& record : records) {
        image.push_back(record.letter);
        appendInteger(image, record.firstWord);
        image.append(3, '\0');
    }
    return image;
}

std::optional<std::string> encodeOccurrences(std::span<const OccurrenceRecord> records) {
    std::string image;
    image.reserve(records.size() * occurrenceRecordSize);
    for (const OccurrenceRecord& record : records) {
        if (!fitsTextField(record.word, occurrenceWordField)) return std::nullopt;
        appendTextField(image, record.word, occurrenceWordField);
        appendInteger(image, record.pageId);
        appendInteger(image, record.itemCode);
        appendInteger(image, record.sectionCode);
        image.push_back('\0');
    }
    return image;
}

}  // namespace formats
