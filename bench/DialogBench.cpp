#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <random>

#include "bench/Required.h"
#include "bench/TestMachine.h"
#include "formats/WordRecords.h"
#include "src/bookmarks/BookmarkFile.h"

/// From the command to the dialog on show, with all painted: the search with 50,000 words, the organiser with
/// 10,000 bookmarks.
namespace {

namespace fs = std::filesystem;
using namespace bench;
using Clock = std::chrono::steady_clock;

constexpr std::size_t wordCount = 50'000;
constexpr std::size_t bookmarkCount = 10'000;

/// Different words of Greek small letters, in no order.
std::vector<std::string> manyWords() {
    std::mt19937 random(5);
    std::vector<std::string> words;
    for (std::size_t i = 0; i < wordCount; ++i) {
        std::string word;
        for (std::size_t number = i; number > 0; number /= 24) word += static_cast<char>(0xE1 + number % 24);
        word.append(3 + random() % 8, static_cast<char>(0xE1 + random() % 24));
        words.push_back(std::move(word));
    }
    return words;
}

/// The bundled content with another vocabulary, removed at the end.
class LargeVocabulary {
  public:
    LargeVocabulary()
        : root_(fs::temp_directory_path() / ("kalyxo-bench-words" + std::to_string(::getpid()))) {
        fs::copy(contentFolder, root_, fs::copy_options::recursive);
        std::ofstream(root_ / "words.ndx", std::ios::binary | std::ios::trunc)
            << required(formats::encodeWordIndex(manyWords()));
    }
    ~LargeVocabulary() { fs::remove_all(root_); }
    LargeVocabulary(const LargeVocabulary&) = delete;
    LargeVocabulary& operator=(const LargeVocabulary&) = delete;

    std::string folder() const { return root_; }

  private:
    fs::path root_;
};

/// Every hundredth record is a folder.
std::string manyBookmarks() {
    kalyxo::BookmarkArray records;
    for (std::size_t i = 0; i < bookmarkCount; ++i) {
        std::unique_ptr<kalyxo::CBookmark> record;
        if (i % 100 == 0) {
            record = std::make_unique<kalyxo::CBMFolder>();
        } else {
            record = std::make_unique<kalyxo::CBMPeriodic>();
        }
        record->name = "Record number " + std::to_string(i * 7919 % bookmarkCount);
        records.push_back(std::move(record));
    }
    return kalyxo::WriteBookmarks(records);
}

void measureOpening(benchmark::State& state, const TestMachine& machine, const std::string& command) {
    ChildProcess program(machine.driver());
    const auto tell = [&program](const std::string& line) {
        program.writeLine(line);
        return program.readLine();
    };
    tell("start");
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        if (tell("command " + command).find("\"carriedOut\":true") == std::string::npos) {
            state.SkipWithError("the dialog did not open");
            return;
        }
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
        tell("press 2");
    }
}

void OpeningOfSearch(benchmark::State& state) {
    const LargeVocabulary disc;
    measureOpening(state, TestMachine("search", disc.folder()), "32771");
}
BENCHMARK(OpeningOfSearch)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void OpeningOfOrganiser(benchmark::State& state) {
    const TestMachine machine("organiser");
    std::ofstream(fs::path(machine.folder()) / "c/Kalyxo/bookmark.dat", std::ios::binary) << manyBookmarks();
    measureOpening(state, machine, "32785");
}
BENCHMARK(OpeningOfOrganiser)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
