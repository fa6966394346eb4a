#include "src/search/ResultRows.h"

namespace kalyxo {

void ResultRows::Add(const std::optional<HitTexts>& texts, std::size_t hit) {
    if (texts && m_known.insert(*texts).second) m_rows.push_back({*texts, hit});
}

namespace {

/// Adds the rows of a word's hits; false when the search was cancelled.
bool addRowsOf(const std::string& word, ResultRows& rows, SearchIndex& index, HitTitles& titles,
               const platform::ProgressStep& step) {
    // The hits of earlier words have been added already.
    const std::size_t first = index.HitCount();
    if (!index.CollectHits(word, step)) return false;
    for (std::size_t hit = first; hit < index.HitCount(); ++hit) {
        rows.Add(titles.MakeHitTexts(index.HitAt(hit)), hit);
        if (!platform::GoesOn(step, hit, SearchIndex::kMaxHits)) return false;
    }
    return true;
}

}  // namespace

std::vector<ResultRow> FindRows(SearchIndex& index, std::span<const std::string> words, HitTitles& titles,
                                const platform::ProgressStep& step) {
    ResultRows rows;
    index.ResetHits();
    for (const std::string& word : words) {
        if (addRowsOf(word, rows, index, titles, step)) continue;
        index.ResetHits();
        return {};
    }
    return rows.Rows();
}

int CompareCells(std::string_view a, std::string_view b) { return a.compare(b); }

}  // namespace kalyxo
