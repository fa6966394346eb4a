#include <iostream>

#include "tools/contentc/commands/Build.h"
#include "tools/contentc/commands/CommandMessages.h"
#include "tools/contentc/commands/Counts.h"
#include "tools/contentc/commands/FolderWatch.h"
#include "tools/contentc/commands/InstalledProgram.h"
#include "tools/contentc/commands/NewFolder.h"
#include "tools/contentc/commands/Options.h"
#include "tools/contentc/commands/ShowProgram.h"

namespace {

using namespace contentc;
namespace fs = std::filesystem;

enum ExitStatus { done = 0, failed = 1, wrongArguments = 2 };

ExitStatus statusOf(bool succeeded) { return succeeded ? done : failed; }

/// The first of the given folders that is no folder; empty when all are.
fs::path missingFolder(const SourceFolders& sources) {
    std::vector<fs::path> folders{sources.content};
    folders.insert(folders.end(), sources.images.begin(), sources.images.end());
    folders.insert(folders.end(), sources.media.begin(), sources.media.end());
    for (const fs::path& folder : folders) {
        std::error_code failure;
        if (!fs::is_directory(folder, failure)) return folder;
    }
    return {};
}

ExitStatus open(const Options& options, const fs::path& program) {
    if (!buildFolder(options)) return failed;
    ShownProgram shown(program, options.output);
    if (!shown.isStarted()) return failed;
    shown.wait();
    return done;
}

/// The folders that the content is made of.
std::vector<fs::path> watchedFolders(const Options& options) {
    std::vector<fs::path> folders;
    Diagnostics ignored;
    for (const Layer& layer : findLayers(options.sources, ignored)) folders.push_back(layer.folder);
    return folders;
}

ExitStatus watch(const Options& options, const fs::path& program) {
    FolderWatch folders(watchedFolders(options), options.output);
    if (!folders.isWatching()) {
        std::cerr << options.sources.content.generic_string() << ": "
                  << Phrase{say::cannotWatch, {}}.in(localeLanguage()) << '\n';
        return failed;
    }
    bool isRight = buildFolder(options);
    std::cout << Phrase{say::isWatching, {options.sources.content.generic_string()}}.in(localeLanguage())
              << '\n'
              << std::flush;
    // If the first build fails, there is nothing to show before a change mends it.
    while (!isRight) {
        if (folders.waitForChange(std::chrono::hours(1))) isRight = buildFolder(options);
    }
    ShownProgram shown(program, options.output);
    if (!shown.isStarted()) return failed;
    while (shown.isRunning()) {
        if (folders.waitForChange(std::chrono::seconds(1))) buildFolder(options);
    }
    return done;
}

ExitStatus run(const Options& options, const InstalledProgram& installed) {
    switch (options.command) {
        case Command::create:
            return statusOf(makeNewFolder(options, installed));
        case Command::check:
            return statusOf(checkFolder(options));
        case Command::counts:
            return statusOf(tellCounts(options));
        case Command::build:
            return statusOf(buildFolder(options));
        case Command::open:
            return open(options, installed.program);
        case Command::watch:
            return watch(options, installed.program);
        case Command::help:
            std::cout << Phrase{say::usage, {}}.in(localeLanguage());
            return done;
        case Command::version:
            std::cout << "contentc " KALYXO_VERSION "\n";
            return done;
    }
    return wrongArguments;
}

int complain(const std::string& fault) {
    std::cerr << "contentc: " << fault << '\n';
    return wrongArguments;
}

}  // namespace

int main(int argc, char* argv[]) {
    auto parsed = parseOptions({argv + (argc > 0 ? 1 : 0), argv + argc});
    if (const auto* fault = std::get_if<Phrase>(&parsed)) return complain(fault->in(localeLanguage()));
    auto& options = std::get<Options>(parsed);
    const InstalledProgram installed = findInstalledProgram();
    options.sources.installed = installed.content;
    const bool readsFolder = options.command != Command::create && options.command < Command::help;
    const fs::path missing = readsFolder ? missingFolder(options.sources) : fs::path();
    if (!missing.empty())
        return complain(missing.generic_string() + ": " + Phrase{say::noSuchFolder, {}}.in(localeLanguage()));
    return run(options, installed);
}
