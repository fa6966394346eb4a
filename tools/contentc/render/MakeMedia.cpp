#include "tools/contentc/render/MakeMedia.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>
#include <mutex>
#include <sstream>

#include "tools/contentc/render/RenderMessages.h"
#include "tools/contentc/render/RunProgram.h"
#include "tools/contentc/source/IgnoredFiles.h"
#include "tools/contentc/source/Parallel.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;

/// Twice the nominal size, so that pictures are sharp on dense screens and when enlarged.
constexpr const char* drawingZoom = "2";

/// One file to be made by a program.
struct Making {
    const SourceFile* source = nullptr;
    Fingerprint fingerprint;
    const char* extension = "";
    /// The command without the path of the result, which comes last.
    std::vector<std::string> command;
    /// Programs that it needs, and the package with them.
    const char* program = "";
    const char* package = "";
    Message fault = say::unknownReason;
};

std::string bytesOf(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return std::move(bytes).str();
}

Making makingOfDrawing(const SourceFile& drawing) {
    Making making{&drawing, {}, ".png", {}, "rsvg-convert", "librsvg2-bin", say::drawingIsFaulty};
    making.fingerprint.add("drawing 1");
    making.fingerprint.add(drawingZoom);
    making.fingerprint.add(drawing.bytes);
    making.command = {"rsvg-convert",        "--zoom",  drawingZoom, "--format", "png",
                      drawing.path.string(), "--output"};
    return making;
}

/// A film depends on its own files and on those that belong to none.
bool isPartOf(const fs::path& path, const SourceFile& film) {
    const std::string extension = path.extension().string();
    const bool isScript = extension == ".awk" || extension == ".sh";
    return path.stem() == film.path.stem() ? isScript
                                           : isScript && !isThere(fs::path(path).replace_extension(".json"));
}

Making makingOfFilm(const SourceFile& film) {
    Making making{&film, {}, ".webm", {}, "ffmpeg", "ffmpeg librsvg2-bin", say::filmIsFaulty};
    const fs::path folder = film.path.parent_path();
    making.fingerprint.add("film 1");
    making.fingerprint.add(film.bytes);
    for (const fs::path& path : listFolder(folder)) {
        if (isPartOf(path, film)) making.fingerprint.add(bytesOf(path));
    }
    making.command = {"sh", (folder / "render.sh").string(), film.stem()};
    return making;
}

Making makingOfVideo(const SourceFile& video) {
    Making making{&video, {}, ".webm", {}, "ffmpeg", "ffmpeg", say::videoIsFaulty};
    making.fingerprint.add("video 1");
    making.fingerprint.add(bytesOf(video.path));
    making.command = {"ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-i", video.path.string()};
    for (const char* option :
         {"-c:v",     "libvpx",    "-deadline", "good",      "-cpu-used",     "2",
          "-threads", "1",         "-b:v",      "1M",        "-crf",          "12",
          "-pix_fmt", "yuv420p",   "-c:a",      "libvorbis", "-map_metadata", "-1",
          "-fflags",  "+bitexact", "-flags:v",  "+bitexact", "-flags:a",      "+bitexact",
          "-f",       "webm"})
        making.command.emplace_back(option);
    return making;
}

/// Ends the making: nothing is missing any more. The drawings stay known, for their names and sizes.
void closeSources(SourceTree& tree) {
    std::ranges::move(tree.drawings, std::back_inserter(tree.drawnDrawings));
    tree.drawings.clear();
    tree.films.clear();
    tree.foreignVideos.clear();
}

/// The last line of what a program said, without the paths of which the user knows nothing.
std::string lastLine(const std::string& text) {
    const std::size_t end = text.find_last_not_of("\n ");
    if (end == std::string::npos) return {};
    const std::size_t begin = text.rfind('\n', end);
    return text.substr(begin + 1, end - begin);
}

class MediaMaker {
  public:
    MediaMaker(const MadeFiles& made, const ProgressReport& report, Diagnostics& diagnostics)
        : made_(made), report_(report), diagnostics_(diagnostics) {}

    /// Makes what is missing; the results in the order of the makings, empty where one failed.
    std::vector<fs::path> run(const std::vector<Making>& makings) {
        std::vector<fs::path> results;
        std::vector<std::size_t> missing;
        for (std::size_t i = 0; i < makings.size(); ++i) {
            results.push_back(made_.pathOf(makings[i].fingerprint, makings[i].extension));
            if (!MadeFiles::has(results.back())) missing.push_back(i);
        }
        all_ = missing.size();
        inParallel(missing.size(), 1, [&](std::size_t i) {
            fs::path& result = results[missing[i]];
            if (!make(makings[missing[i]], result)) result.clear();
            const std::lock_guard lock(mutex_);
            report_(++done_, all_);
        });
        return results;
    }

  private:
    bool make(const Making& making, const fs::path& result) {
        const fs::path part = made_.partOf(result);
        if (part.empty()) return fail({result.parent_path().generic_string()}, say::madeFilesFolderFails);
        std::vector<std::string> command = making.command;
        command.push_back(part.string());
        const ProgramEnd end = runProgram(command);
        const bool isThere = end.started && end.errors.find(": not found") == std::string::npos;
        const SourcePlace place = making.source->place();
        if (!isThere) return fail(place, say::programIsMissing, {making.program, making.package});
        if (end.succeeded() && MadeFiles::keep(part, result)) return true;
        std::error_code ignored;
        fs::remove(part, ignored);
        return fail(place, making.fault, {lastLine(end.errors)});
    }

    bool fail(const SourcePlace& place, const Message& message, MessageValues values = {}) {
        const std::lock_guard lock(mutex_);
        diagnostics_.error(place, message, std::move(values));
        return false;
    }

    const MadeFiles& made_;
    const ProgressReport& report_;
    Diagnostics& diagnostics_;
    std::mutex mutex_;
    std::size_t done_ = 0;
    std::size_t all_ = 0;
};

SourceFile resultOf(const SourceFile& source, const char* extension, std::string bytes) {
    return {source.path, std::move(bytes), source.layer, extension};
}

}  // namespace

void makeMedia(SourceTree& tree, const MadeFiles& made, const ProgressReport& report,
               Diagnostics& diagnostics) {
    std::vector<Making> makings;
    // Films take the longest, so they come first.
    std::ranges::transform(tree.foreignVideos, std::back_inserter(makings), makingOfVideo);
    std::ranges::transform(tree.films, std::back_inserter(makings), makingOfFilm);
    std::ranges::transform(tree.drawings, std::back_inserter(makings), makingOfDrawing);
    const std::vector<fs::path> results = MediaMaker(made, report, diagnostics).run(makings);
    for (std::size_t i = 0; i < makings.size(); ++i) {
        auto& files = makings[i].extension == std::string_view(".png") ? tree.pictures : tree.videos;
        auto file = results[i].empty() ? std::nullopt : readSourceFile(results[i], diagnostics);
        std::string bytes = file ? std::move(file->bytes) : std::string();
        files.push_back(resultOf(*makings[i].source, makings[i].extension, std::move(bytes)));
    }
    closeSources(tree);
}

void pretendMedia(SourceTree& tree) {
    for (const SourceFile& drawing : tree.drawings) tree.pictures.push_back(resultOf(drawing, ".png", {}));
    for (const auto* films : {&tree.films, &tree.foreignVideos}) {
        for (const SourceFile& film : *films) tree.videos.push_back(resultOf(film, ".webm", {}));
    }
    closeSources(tree);
}

}  // namespace contentc
