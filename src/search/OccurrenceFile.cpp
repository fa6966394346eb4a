#include "src/search/OccurrenceFile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string>

#include "formats/WordRecords.h"

namespace kalyxo {

namespace {

using formats::occurrenceRecordSize;
using formats::occurrenceWordField;

/// Records that are read at once: few enough to stay in the processor's cache until they are compared. Block
/// and file offsets are multiples of the page, so that the host copies page by page.
constexpr std::size_t kPage = 4096;
struct alignas(kPage) Block : std::array<char, kPage * occurrenceRecordSize> {};

/// Compares the word's field of records. Nearly all records differ in their first bytes, so those are
/// compared as one number and the rest only then.
class WordMatcher {
  public:
    /// `word` is at most as long as the field.
    explicit WordMatcher(std::string_view word) : m_length(std::min(word.size() + 1, m_field.size())) {
        std::ranges::copy(word, m_field.begin());
        std::memset(&m_headMask, 0xFF, std::min(m_length, sizeof m_headMask));
        m_head = headOf(m_field.data()) & m_headMask;
    }

    bool operator()(const char* record) const {
        return (headOf(record) & m_headMask) == m_head && std::memcmp(record, m_field.data(), m_length) == 0;
    }

  private:
    static std::uint64_t headOf(const char* bytes) {
        std::uint64_t head = 0;
        std::memcpy(&head, bytes, sizeof head);
        return head;
    }

    std::array<char, occurrenceWordField> m_field{};
    /// Bytes that count: the word and its NUL, or all of the field.
    std::size_t m_length;
    std::uint64_t m_headMask = 0;
    std::uint64_t m_head = 0;
};

void appendHit(const char* record, std::vector<SearchHit>& hits) {
    if (const auto found = formats::decodeOccurrence({record, occurrenceRecordSize}))
        hits.push_back({found->pageId, found->itemCode, found->sectionCode});
}

}  // namespace

OccurrenceFile::OccurrenceFile(const platform::FileSystem& files, std::string_view dataFolder)
    : m_file(platform::BinaryFile::open(files, std::string(dataFolder).append(formats::occurrencesFile))) {}

bool OccurrenceFile::Collect(std::string_view word, std::vector<SearchHit>& hits, std::size_t limit,
                             const platform::ProgressStep& step) const {
    if (!m_file || word.size() > occurrenceWordField) return true;
    const WordMatcher matches(word);
    const auto block = std::make_unique<Block>();
    std::size_t got = 0;
    std::uint64_t offset = 0;
    do {
        got = m_file->readAt(offset, std::as_writable_bytes(std::span<char>(*block)));
        offset += got;
        const char* const end = block->data() + got - got % occurrenceRecordSize;
        for (const char* record = block->data(); record < end; record += occurrenceRecordSize) {
            if (matches(record) && hits.size() < limit) appendHit(record, hits);
        }
        if (!platform::GoesOn(step, offset, m_file->size())) return false;
    } while (got == block->size() && hits.size() < limit);
    return true;
}

}  // namespace kalyxo
