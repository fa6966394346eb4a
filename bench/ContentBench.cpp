#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "bench/TestMachine.h"

/// Building the bundled content again after a change to one of its pages, from the start of contentc to its
/// end.
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

/// A copy of the content's sources, built once, removed at the end.
class Sources {
  public:
    Sources() : root_(fs::temp_directory_path() / ("kalyxo-bench-content" + std::to_string(::getpid()))) {
        fs::create_directories(root_);
        fs::copy(KALYXO_SOURCES_FOLDER, root_ / "sources", fs::copy_options::recursive);
        // What the pictures and films are made into does not belong to the figure.
        fs::copy(KALYXO_MADE_FOLDER, root_ / "made", fs::copy_options::recursive);
    }
    ~Sources() { fs::remove_all(root_); }
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    bool build() const {
        return ChildProcess({bench::binFolder + "/contentc", "build", root_ / "sources", "--output",
                             root_ / "data", "--cache", root_ / "made", "--images",
                             std::string(KALYXO_IMAGES_FOLDER)})
            .succeeded();
    }

    /// Adds a paragraph to a page, the same one each time.
    void changeAPage() const {
        for (const auto& entry : fs::recursive_directory_iterator(root_ / "sources/pages")) {
            if (entry.path().extension() != ".md") continue;
            std::ofstream(entry.path(), std::ios::app) << "\nΑκόμη μία παράγραφος.\n";
            return;
        }
    }

  private:
    fs::path root_;
};

void BuildAfterOneChange(benchmark::State& state) {
    const Sources sources;
    bool built = sources.build();
    for (auto _ : state) {
        sources.changeAPage();
        const Clock::time_point begin = Clock::now();
        built = built && sources.build();
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
    }
    if (!built) state.SkipWithError("the content was not built");
}
BENCHMARK(BuildAfterOneChange)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
