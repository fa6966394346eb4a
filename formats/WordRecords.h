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
inline constexpr std::string_view kWordIndexFile = "words.ndx";
inline constexpr std::string_view kAlternativesFile = "words.alt";
inline constexpr std::string_view kFirstLettersFile = "words.pr1";
inline constexpr std::string_view kOccurrencesFile = "words.dat";

/// Sizes of one record on disk; the records are packed.
inline constexpr std::size_t kWordIndexRecordSize = 32;
inline constexpr std::size_t kAlternativeRecordSize = 30;
inline constexpr std::size_t kFirstLetterRecordSize = 8;
inline constexpr std::size_t kOccurrenceRecordSize = 43;

/// Size of the word's field that begins an occurrence record.
inline constexpr std::size_t kOccurrenceWordField = 32;

/// Longest words in bytes, without their NUL.
inline constexpr std::size_t kMaxIndexedWord = 31;
inline constexpr std::size_t kMaxAlternative = 25;

/// The records of words with one group id are forms of one word.
struct AlternativeRecord {
    std::int32_t groupId = 0;
    /// Code page 1253, at most `kMaxAlternative` bytes, no NUL.
    std::string word;

    bool operator==(const AlternativeRecord&) const = default;
};

/// A letter with which words begin.
struct FirstLetterRecord {
    char letter = 0;
    /// Number of the first word in `words.ndx` that begins with the letter, counted from 0, as the content
    /// compiler writes it; the program does not look at it.
    std::uint32_t firstWord = 0;

    bool operator==(const FirstLetterRecord&) const = default;
};

/// One place at which a word is indexed.
struct OccurrenceRecord {
    /// Code page 1253, at most `kMaxIndexedWord` bytes, no NUL.
    std::string word;
    /// 0 or less when there is no page to open.
    std::int32_t pageId = 0;
    /// 0 for the page itself, otherwise an entry of a title list.
    std::int32_t itemCode = 0;
    /// 1 to 7; a record of any other section is never shown.
    std::int16_t sectionCode = 0;

    bool operator==(const OccurrenceRecord&) const = default;
};

/// The words of a whole word index in file order; a partial last record is ignored, a word without NUL is cut
/// at the end of its field.
std::vector<std::string> decodeWordIndex(std::string_view image);

/// The two fields of the first record of `bytes`, which the caller has checked to hold one. The word points
/// into `bytes` and is cut at the end of its field when it has no NUL.
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
