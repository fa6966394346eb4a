#include "src/search/ResultRows.h"

namespace kalyxo {

void ResultRows::Add(const std::optional<HitTexts>& texts, std::size_t hit) {
    if (texts && m_known.insert(*texts).second) m_rows.push_back({*texts, hit});
}

std::vector<ResultRow> FindRows(SearchIndex& index, std::span<const std::string> words, HitTitles& titles,
                                const platform::ProgressStep& step) {
    ResultRows rows;
    index.ResetHits();
    for (const std::string& word : words) {
        // Hits of the words before have their rows already, or read like one.
        const std::size_t first = index.HitCount();
        index.CollectHits(word, step);
        for (std::size_t hit = first; hit < index.HitCount(); ++hit) {
            rows.Add(titles.MakeHitTexts(index.HitAt(hit)), hit);
            if (platform::GoesOn(step, hit, SearchIndex::MaxHits)) continue;
            index.ResetHits();
            return {};
        }
    }
    return rows.Rows();
}

int CompareCells(std::string_view a, std::string_view b) { return a.compare(b); }

}  // namespace kalyxo
