#include "fuzz/Target.h"
#include "src/search/ResultRows.h"
#include "tests/support/TestDrives.h"

/// A word, the four files of the word search, a title list and a file of page titles: a search from the first
/// letter to the rows of the list.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    const auto parts = partsOf(input, 7);
    constexpr const char* files[] = {"words.ndx", "words.alt", "words.pr1",
                                     "words.dat", "elem.ttl",  "react.dat"};
    for (std::size_t i = 0; i < std::size(files); ++i)
        drives.put(std::string("D:\\") + files[i], parts[i + 1]);
    kalyxo::SearchIndex index(drives.files, "D:\\");
    kalyxo::HitTitles titles(drives.files, "D:\\");
    index.LoadAlternatives();
    index.LoadFirstLetterTable();
    require(index.FirstLetters().size() <= kalyxo::SearchIndex::kMaxFirstLetterRecords,
            "the table of letters is bounded");
    const auto words = index.LoadWordIndex();
    const std::string word = words.empty() ? parts[0] : words.front();
    for (const auto& one : {parts[0], word}) {
        const auto rows = kalyxo::FindRows(index, index.ExpandAlternatives(one, true), titles);
        require(index.HitCount() <= kalyxo::SearchIndex::kMaxHits, "the hits are bounded");
        for (const auto& row : rows) require(row.hit < index.HitCount(), "each row is of a hit");
    }
}
