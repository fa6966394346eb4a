#include "src/search/SearchIndex.h"

#include <algorithm>
#include <utility>

#include "platform/files/BinaryFile.h"
#include "src/search/IndexFileLimit.h"

namespace kalyxo {

SearchIndex::SearchIndex(const platform::FileSystem& files, std::string dataFolder)
    : m_files(files), m_dataFolder(std::move(dataFolder)), m_occurrences(files, m_dataFolder) {
    m_hits.reserve(kMaxHits);
}

std::vector<std::string> SearchIndex::LoadWordIndex(const platform::ProgressStep& step) const {
    return formats::decodeWordIndex(
        m_files.readAll(pathOf(formats::wordIndexFile), kMaxIndexFileBytes, step).value_or(""));
}

void SearchIndex::LoadAlternatives(const platform::ProgressStep& step) {
    m_alternatives.Load(m_files, m_dataFolder, step);
}

bool SearchIndex::LoadFirstLetterTable() {
    m_firstLetters.clear();
    const auto file = platform::BinaryFile::open(m_files, pathOf(formats::firstLettersFile));
    if (!file) return true;
    std::string records(kMaxFirstLetterRecords * formats::firstLetterRecordSize, '\0');
    records.resize(file->readAt(0, std::as_writable_bytes(std::span(records))));
    m_firstLetters = formats::decodeFirstLetters(records);
    return file->size() / formats::firstLetterRecordSize <= kMaxFirstLetterRecords;
}

std::vector<std::string> SearchIndex::ExpandAlternatives(std::string_view word, bool wanted) const {
    if (!wanted) return {std::string(word)};
    return m_alternatives.FormsOf(word);
}

}  // namespace kalyxo
