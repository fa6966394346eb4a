#pragma once

#include <set>
#include <string>
#include <vector>

#include "formats/WordRecords.h"
#include "tools/contentc/source/Content.h"

namespace contentc {

/// The records of the word search.
struct WordIndex {
    /// Ascending by bytes.
    std::vector<std::string> words;
    /// Groups of two words and more, numbered from 1 in the order of their first words.
    std::vector<formats::AlternativeRecord> alternatives;
    std::vector<formats::FirstLetterRecord> firstLetters;
    /// One record for each word of each page, in the order of sections and pages.
    std::vector<formats::OccurrenceRecord> occurrences;
};

/// Indexes the words of all section pages. The pages that link a term are found by its names too, and by the
/// words of its text that no page has. Stop words and words too long for a record are left out.
WordIndex makeWordIndex(const Content& content);

/// Groups the forms of one word: those that the author has grouped, and of the others those with the same
/// stem. The groups and the words in each are in ascending order.
std::vector<std::vector<std::string>> groupForms(const std::set<std::string>& words,
                                                 const std::vector<std::vector<std::string>>& formGroups);

}  // namespace contentc
