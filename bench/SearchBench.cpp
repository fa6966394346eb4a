#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "bench/MappedScan.h"
#include "bench/Required.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "formats/WordRecords.h"
#include "src/search/ResultRows.h"

/// Word searches over 1,000,000 occurrences on a memory file system, beside the plainest ways to scan the
/// same file.
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t recordCount = 1'000'000;
constexpr int formCount = 10;
/// One record in so many is one of the forms, so that all of them together stay below the most hits.
constexpr std::int32_t recordsPerHit = 2'600;
constexpr std::int32_t indexedPages = 400;

std::string formOf(std::int32_t number) { return "searched-form" + std::to_string(number); }

/// A data folder, removed at the end.
class IndexFolder {
  public:
    IndexFolder() : root_(fs::temp_directory_path() / ("kalyxo-bench-search-" + std::to_string(::getpid()))) {
        fs::create_directories(root_);
        writeOccurrences();
        writeAlternatives();
        writeTitles();
    }
    ~IndexFolder() { fs::remove_all(root_); }
    IndexFolder(const IndexFolder&) = delete;
    IndexFolder& operator=(const IndexFolder&) = delete;

    fs::path file(std::string_view name) const { return root_ / name; }
    platform::FileSystem drives() const {
        return platform::FileSystem({{'D', platform::DriveType::cdrom, root_}});
    }

    static const IndexFolder& instance() {
        static const IndexFolder folder;
        return folder;
    }

  private:
    void write(std::string_view name, const std::string& bytes) const {
        std::ofstream(file(name), std::ios::binary) << bytes;
    }

    /// Words of the lengths that a text has, many with the same beginning, the searched ones among them.
    void writeOccurrences() const {
        std::vector<formats::OccurrenceRecord> records;
        for (std::int32_t i = 0; i < recordCount; ++i) {
            const bool isHit = i % recordsPerHit == 0;
            const std::int32_t hit = i / recordsPerHit;
            records.push_back({isHit ? formOf(hit % formCount) : "search" + std::to_string(i % 50'000),
                               isHit ? hit % indexedPages : i, isHit ? 10'001 + hit : 0, 2});
        }
        write("words.dat", bench::required(formats::encodeOccurrences(records)));
    }

    void writeAlternatives() const {
        std::vector<formats::AlternativeRecord> records;
        records.reserve(formCount);
        for (std::int32_t i = 0; i < formCount; ++i) records.push_back({1, formOf(i)});
        write("words.alt", bench::required(formats::encodeAlternatives(records)));
    }

    void writeTitles() const {
        std::vector<formats::SectionTitleRecord> pages;
        std::vector<std::string> entries;
        for (std::int32_t i = 0; i < indexedPages; ++i) {
            pages.push_back({"The title of page " + std::to_string(i), i});
            entries.push_back("The title of entry " + std::to_string(i));
        }
        write("struct.dat", bench::required(formats::encodeSectionTitles(pages)));
        write("elem.ttl", bench::required(formats::encodeTitleList(entries)));
    }

    fs::path root_;
};

int countByFread(std::FILE* file, const char* word) {
    char record[formats::occurrenceRecordSize];
    int found = 0;
    if (std::fseek(file, 0, SEEK_SET) != 0) return 0;
    while (std::fread(record, sizeof record, 1, file) == 1) {
        if (std::strncmp(record, word, formats::occurrenceWordField) == 0) ++found;
    }
    return found;
}

void check(benchmark::State& state, std::size_t found, std::size_t expected) {
    if (found != expected) state.SkipWithError("not all occurrences were found");
}

constexpr std::size_t hitsOfAll = (recordCount + recordsPerHit - 1) / recordsPerHit;
constexpr std::size_t hitsOfOne = (hitsOfAll + formCount - 1) / formCount;

void MappedScanInPlainC(benchmark::State& state) {
    const bench::MappedFile file(IndexFolder::instance().file("words.dat"));
    const std::string word = formOf(0);
    int found = 0;
    for (auto _ : state) found = bench::countPlainly(file, word);
    check(state, static_cast<std::size_t>(found), hitsOfOne);
}
BENCHMARK(MappedScanInPlainC)->Unit(benchmark::kMillisecond);

void FreadRecordByRecord(benchmark::State& state) {
    const fs::path path = IndexFolder::instance().file("words.dat");
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    const std::string word = formOf(0);
    int found = 0;
    for (auto _ : state) found = countByFread(file.get(), word.c_str());
    check(state, static_cast<std::size_t>(found), hitsOfOne);
}
BENCHMARK(FreadRecordByRecord)->Unit(benchmark::kMillisecond);

void OneLookUp(benchmark::State& state) {
    const platform::FileSystem files = IndexFolder::instance().drives();
    kalyxo::SearchIndex index(files, "D:\\");
    for (auto _ : state) {
        index.ResetHits();
        index.CollectHits(formOf(0));
    }
    check(state, index.HitCount(), hitsOfOne);
}
BENCHMARK(OneLookUp)->Unit(benchmark::kMillisecond);

/// A whole search with so many forms, its hits turned into rows.
void SearchWithForms(benchmark::State& state) {
    const platform::FileSystem files = IndexFolder::instance().drives();
    kalyxo::SearchIndex index(files, "D:\\");
    index.LoadAlternatives();
    std::vector<std::string> words = index.ExpandAlternatives(formOf(0), true);
    words.resize(static_cast<std::size_t>(state.range(0)));
    std::size_t rows = 0;
    for (auto _ : state) {
        kalyxo::HitTitles titles(files, "D:\\");
        rows = kalyxo::FindRows(index, words, titles).size();
    }
    check(state, rows, index.HitCount());
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(SearchWithForms)->Unit(benchmark::kMillisecond)->Arg(1)->Arg(5)->Arg(formCount);

/// The titles and rows of 400 hits alone: all occurrences of one word at the beginning of the file.
void FourHundredHitsIntoRows(benchmark::State& state) {
    const platform::FileSystem files = IndexFolder::instance().drives();
    std::size_t rows = 0;
    for (auto _ : state) {
        kalyxo::HitTitles titles(files, "D:\\");
        kalyxo::ResultRows folded;
        for (std::int32_t i = 0; i < indexedPages; ++i)
            folded.Add(titles.MakeHitTexts({i, 10'001 + i, 2}), static_cast<std::size_t>(i));
        rows = folded.Rows().size();
    }
    check(state, rows, indexedPages);
}
BENCHMARK(FourHundredHitsIntoRows)->Unit(benchmark::kMillisecond);

}  // namespace
