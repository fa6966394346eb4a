#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/WordRecords.h"
#include "platform/files/FileSystem.h"
#include "src/search/AlternativesTable.h"
#include "src/search/OccurrenceFile.h"
#include "src/search/SearchHit.h"

namespace kalyxo {

/// The word search's four files and the hits of the current search run. A file that is missing or cannot be
/// read counts as empty. All words are code page 1253 and compared byte for byte.
class SearchIndex {
  public:
    /// Most hits of one search run, over all of its words.
    static constexpr std::size_t kMaxHits = 400;
    static constexpr std::size_t kMaxFirstLetterRecords = 200;

    /// Opens the occurrences of the data folder (which ends with a backslash) and keeps them open. `files`
    /// must outlive the index.
    SearchIndex(const platform::FileSystem& files, std::string dataFolder);

    /// The vocabulary in file order; empty when cancelled.
    std::vector<std::string> LoadWordIndex(const platform::ProgressStep& step = {}) const;
    void LoadAlternatives(const platform::ProgressStep& step = {});
    /// False when the file has more records than the table has room for; the first ones are kept.
    bool LoadFirstLetterTable();
    const std::vector<formats::FirstLetterRecord>& FirstLetters() const { return m_firstLetters; }

    /// The words to look up: the chosen word and, if wanted, the other forms of its group.
    std::vector<std::string> ExpandAlternatives(std::string_view word, bool wanted) const;

    /// Starts a search run without hits.
    void ResetHits() { m_hits.clear(); }
    /// Appends the occurrences of a word in file order, up to `kMaxHits` hits in all. False when `step` has
    /// cancelled the search; then any occurrences may be missing.
    bool CollectHits(std::string_view word, const platform::ProgressStep& step = {}) {
        return m_occurrences.Collect(word, m_hits, kMaxHits, step);
    }
    std::size_t HitCount() const { return m_hits.size(); }
    const SearchHit& HitAt(std::size_t i) const { return m_hits[i]; }

  private:
    std::string pathOf(std::string_view name) const { return std::string(m_dataFolder).append(name); }

    const platform::FileSystem& m_files;
    std::string m_dataFolder;
    OccurrenceFile m_occurrences;
    AlternativesTable m_alternatives;
    std::vector<formats::FirstLetterRecord> m_firstLetters;
    std::vector<SearchHit> m_hits;
};

}  // namespace kalyxo
