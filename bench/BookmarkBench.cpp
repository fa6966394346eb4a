#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/files/FileSystem.h"
#include "src/bookmarks/BookmarkFile.h"

/// Loading and saving bookmarks, of which every tenth record is a folder and the others are of each kind in
/// turn.
namespace {

namespace fs = std::filesystem;
using namespace kalyxo;

template <class Record>
std::unique_ptr<Record> makeRecord(int number) {
    auto record = std::make_unique<Record>();
    record->name = "Record number " + std::to_string(number);
    return record;
}

std::unique_ptr<CBookmark> makeAnalyserRecord(int number) {
    auto record = makeRecord<CBMDataAn>(number);
    record->value8 = 16;
    record->value11.resize(16);
    record->entryBlock.assign(12, 12);
    record->entries.resize(11);
    return record;
}

BookmarkArray makeRecords(int count) {
    BookmarkArray records;
    for (int i = 0; i < count; ++i) {
        if (i % 10 == 0) {
            records.push_back(makeRecord<CBMFolder>(i));
        } else if (i % 3 == 0) {
            records.push_back(makeRecord<CBMBrowse>(i));
        } else if (i % 3 == 1) {
            records.push_back(makeRecord<CBMPeriodic>(i));
        } else {
            records.push_back(makeAnalyserRecord(i));
        }
    }
    return records;
}

/// A drive C: in a folder of its own, removed at the end.
class Drive {
  public:
    Drive()
        : root_(fs::temp_directory_path() / ("kalyxo-bookmark-bench-" + std::to_string(::getpid()))),
          files({{'C', platform::DriveType::fixed, root_}}) {
        fs::create_directories(root_);
    }
    ~Drive() { fs::remove_all(root_); }
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;
    const fs::path& root() const { return root_; }

  private:
    fs::path root_;

  public:
    const platform::FileSystem files;
};

constexpr const char* bookmarkPath = "C:\\bookmark.dat";

void LoadingOfBookmarks(benchmark::State& state) {
    const Drive drive;
    BookmarkFile file(drive.files, bookmarkPath, drive.root());
    file.Save(makeRecords(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        BookmarkList list;
        if (file.Load(list) != BookmarkLoad::loaded) {
            state.SkipWithError("the file was not read");
            return;
        }
    }
}
BENCHMARK(LoadingOfBookmarks)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// Over the file of the time before, of which a copy is made.
void SavingOfBookmarks(benchmark::State& state) {
    const Drive drive;
    const BookmarkArray records = makeRecords(static_cast<int>(state.range(0)));
    BookmarkFile file(drive.files, bookmarkPath, drive.root());
    file.Save(records);
    BookmarkList list;
    file.Load(list);
    for (auto _ : state) {
        if (file.Save(records) != BookmarkSave::saved) {
            state.SkipWithError("the file was not written");
            return;
        }
    }
}
BENCHMARK(SavingOfBookmarks)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
