#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace formats {

/// Names of the word search's files in the data folder.
inline constexpr std::string_view wordIndexFile = "words.ndx";
inline constexpr std::string_view alternativesFile = "words.alt";
inline constexpr std::string_view firstLettersFile = "words.pr1";
inline constexpr std::string_view occurrencesFile = "words.dat";

/// Sizes of one record on disk; the records are packed.
inline constexpr std::size_t wordIndexRecordSize = 32;
inline constexpr std::size_t alternativeRecordSize = 30;
inline constexpr std::size_t firstLetterRecordSize = 8;
inline constexpr std::size_t occurrenceRecordSize = 43;

/// Size of the word's field that begins an occurrence record.
inline constexpr std::size_t occurrenceWordField = 32;

/// Longest words in bytes, without their NUL.
inline constexpr std::size_t maxIndexedWord = 31;
inline constexpr std::size_t maxAlternative = 25;

/// The records of words with one group id are forms of one word.
struct AlternativeRecord {
    std::int32_t groupId = 0;
    /// Code page 1253, at most `maxAlternative` bytes, no NUL.
    std::string word;

    bool operator==(const AlternativeRecord&) const = default;
};

/// A letter with which words begin.
struct FirstLetterRecord {
    char letter = 0;
    /// The index in `words.ndx` of the first word with this letter. The content compiler writes it; the
    /// program does not use it.
    std::uint32_t firstWord = 0;

    bool operator==(const FirstLetterRecord&) const = default;
};

/// One place in the content where a word occurs.
struct OccurrenceRecord {
    /// Code page 1253, at most `maxIndexedWord` bytes, no NUL.
    std::string word;
    /// The page to open; none when it is 0 or less.
    std::int32_t pageId = 0;
    /// 0 for the page itself, otherwise an entry of a title list.
    std::int32_t itemCode = 0;
    /// 1 to 7; records with another section are never shown.
    std::int16_t sectionCode = 0;

    bool operator==(const OccurrenceRecord&) const = default;
};

/// The words of a whole word index in file order; a partial last record is ignored, a word without NUL is cut
/// at the end of its field.
std::vector<std::string> decodeWordIndex(std::string_view image);

/// The two fields of the first record of `bytes`, which must hold a whole record. The word points into
/// `bytes`; without a NUL it is cut at the end of its field.
std::int32_t alternativeGroup(std::string_view bytes);
std::string_view alternativeWord(std::string_view bytes);

/// The records of a whole first-letter table; a partial last record is ignored.
std::vector<FirstLetterRecord> decodeFirstLetters(std::string_view image);

/// The first record of `bytes`. Nothing when `bytes` is shorter than a record.
std::optional<OccurrenceRecord> decodeOccurrence(std::string_view bytes);

/// File images. Nothing when a word does not fit its field or contains a NUL.
std::optional<std::string> encodeWordIndex(std::span<const std::string> words);
std::optional<std::string> encodeAlternatives(std::span<const AlternativeRecord> records);
std::string encodeFirstLetters(std::span<const FirstLetterRecord> records);
std::optional<std::string> encodeOccurrences(std::span<const OccurrenceRecord> records);

}  // namespace formats
