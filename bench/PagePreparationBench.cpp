#include <benchmark/benchmark.h>

#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "platform/files/FileSystem.h"
#include "src/pages/PagePreparer.h"

/// Preparing 2,000 pages of 8 KB on a memory file system, beside a plain read-and-write copy of the same
/// files.
namespace {

namespace fs = std::filesystem;

constexpr int pageCount = 2000;
constexpr std::size_t pageBytes = 8 * std::size_t{1024};

/// A page as the content has them: markup, text, and here and there a marker.
std::string makePage() {
    std::string page =
        "<HTML>\r\n<HEAD><LINK REL=stylesheet HREF=\"\x05..style\\kalyxo.css\"></HEAD>\r\n"
        "<BODY BGCOLOR=\"#FFFFFF\" ALINK=\"#FFFFFF\">\r\n";
    while (page.size() < pageBytes) {
        page += "<P CLASS=text>The particles of a gas move freely and fill the whole vessel.</P>\r\n";
        if (page.size() % 5 == 0) page += "<P>A ~Gmolecule01molecule~G is the smallest part.</P>\r\n";
    }
    page.resize(pageBytes - 16);
    return page + "</BODY>\r\n</HTML>\r\n";
}

/// Source and target folders on the memory file system, removed at the end.
class Pages {
  public:
    Pages() : root_(fs::path("/dev/shm") / ("kalyxo-bench-" + std::to_string(::getpid()))) {
        fs::create_directories(root_ / "d");
        fs::create_directories(root_ / "c");
        const std::string page = makePage();
        for (int i = 0; i < pageCount; ++i) std::ofstream(source(i), std::ios::binary) << page;
    }
    ~Pages() { fs::remove_all(root_); }
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;

    fs::path source(int i) const { return root_ / "d" / std::to_string(i); }
    fs::path target(int i) const { return root_ / "c" / (std::to_string(i) + ".htm"); }
    const fs::path& root() const { return root_; }

    static const Pages& instance() {
        static const Pages pages;
        return pages;
    }

  private:
    fs::path root_;
};

void copyPlainly(const fs::path& from, const fs::path& to) {
    std::array<char, 32 * std::size_t{1024}> buffer;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(from.c_str(), "rb"), &std::fclose);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::fopen(to.c_str(), "wb"), &std::fclose);
    std::size_t count = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), in.get())) > 0) {
        std::fwrite(buffer.data(), 1, count, out.get());
    }
}

void PlainCopyOfPages(benchmark::State& state) {
    const Pages& pages = Pages::instance();
    for (auto _ : state) {
        for (int i = 0; i < pageCount; ++i) copyPlainly(pages.source(i), pages.target(i));
    }
}
BENCHMARK(PlainCopyOfPages)->Unit(benchmark::kMillisecond);

void PreparationOfPages(benchmark::State& state) {
    const Pages& pages = Pages::instance();
    const platform::FileSystem files({{'C', platform::DriveType::fixed, pages.root() / "c"},
                                      {'D', platform::DriveType::cdrom, pages.root() / "d"}});
    const kalyxo::PagePreparer preparer(files, "D:\\", "C:\\");
    kalyxo::PageContents contents;
    for (auto _ : state) {
        for (int i = 0; i < pageCount; ++i) {
            const std::string number = std::to_string(i);
            if (preparer.PreparePage("D:\\" + number, "C:\\" + number + ".htm", contents) !=
                kalyxo::PrepareResult::prepared) {
                state.SkipWithError("a page was not prepared");
                return;
            }
        }
    }
}
BENCHMARK(PreparationOfPages)->Unit(benchmark::kMillisecond);

}  // namespace
