#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/MappedScan.h"
#include "bench/TestMachine.h"
#include "formats/WordRecords.h"
#include "src/search/ResultRows.h"

/// Word searches in the bundled content as this build has compiled it, beside a mapped scan of the same file
/// for the same words.
namespace {

constexpr std::size_t searchCount = 50;

/// For each search the words that it looks up: a word of the vocabulary with all its forms. The words stand
/// at equal distances in it.
std::vector<std::vector<std::string>> searches(kalyxo::SearchIndex& index) {
    index.LoadAlternatives();
    const std::vector<std::string> vocabulary = index.LoadWordIndex();
    std::vector<std::vector<std::string>> all;
    for (std::size_t i = 0; i < searchCount && !vocabulary.empty(); ++i) {
        all.push_back(index.ExpandAlternatives(vocabulary[i * vocabulary.size() / searchCount], true));
    }
    return all;
}

struct Bundled {
    platform::FileSystem files{{{'D', platform::DriveType::cdrom, bench::contentFolder}}};
    kalyxo::SearchIndex index{files, "D:\\"};
    std::vector<std::vector<std::string>> all = searches(index);
};

void MappedScanOfBundledContent(benchmark::State& state) {
    Bundled bundled;
    const bench::MappedFile file(bench::contentFolder + '/' + std::string(formats::occurrencesFile));
    int found = 0;
    for (auto _ : state) {
        found = 0;
        for (const auto& words : bundled.all) {
            for (const std::string& word : words) found += bench::countPlainly(file, word);
        }
    }
    if (found == 0) state.SkipWithError("nothing was found");
    state.counters["found"] = found;
}
BENCHMARK(MappedScanOfBundledContent)->Unit(benchmark::kMillisecond);

void LookUpInBundledContent(benchmark::State& state) {
    Bundled bundled;
    std::size_t found = 0;
    for (auto _ : state) {
        found = 0;
        for (const auto& words : bundled.all) {
            bundled.index.ResetHits();
            for (const std::string& word : words) bundled.index.CollectHits(word);
            found += bundled.index.HitCount();
        }
    }
    if (found == 0) state.SkipWithError("nothing was found");
    state.counters["found"] = static_cast<double>(found);
}
BENCHMARK(LookUpInBundledContent)->Unit(benchmark::kMillisecond);

/// Whole searches, their hits turned into rows with titles.
void SearchOfBundledContent(benchmark::State& state) {
    Bundled bundled;
    std::size_t rows = 0;
    for (auto _ : state) {
        rows = 0;
        for (const auto& words : bundled.all) {
            kalyxo::HitTitles titles(bundled.files, "D:\\");
            rows += kalyxo::FindRows(bundled.index, words, titles).size();
        }
    }
    if (rows == 0) state.SkipWithError("nothing was found");
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(SearchOfBundledContent)->Unit(benchmark::kMillisecond);

}  // namespace
