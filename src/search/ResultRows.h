#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "src/search/HitTitles.h"
#include "src/search/SearchIndex.h"

namespace kalyxo {

/// A line of the result list.
struct ResultRow {
    HitTexts texts;
    /// The index of the first hit with these texts.
    std::size_t hit = 0;
};

/// The rows of the result list, in the order in which they are found. Hits with the same texts share a row.
class ResultRows {
  public:
    /// Adds a row for a hit, unless it has no texts or another row has the same texts.
    void Add(const std::optional<HitTexts>& texts, std::size_t hit);

    const std::vector<ResultRow>& Rows() const { return m_rows; }

  private:
    std::vector<ResultRow> m_rows;
    std::set<HitTexts> m_known;
};

/// Looks up the words one after the other, as a new run of the index, and returns the rows of its hits. A run
/// that `step` cancels has no hits.
std::vector<ResultRow> FindRows(SearchIndex& index, std::span<const std::string> words, HitTitles& titles,
                                const platform::ProgressStep& step = {});

/// Compares two cells by their unsigned bytes: negative, 0 or positive. A text comes after any text that it
/// begins with.
int CompareCells(std::string_view a, std::string_view b);

}  // namespace kalyxo
