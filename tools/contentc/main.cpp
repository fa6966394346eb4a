#include <iostream>

#include "tools/contentc/ContentCompiler.h"
#include "tools/contentc/DataFolderWriter.h"
#include "tools/contentc/Options.h"

namespace {

enum ExitStatus { done = 0, failed = 1, wrongArguments = 2 };

/// The first of the given folders that is no folder; empty when all are.
std::filesystem::path missingFolder(const contentc::SourceFolders& sources) {
    std::vector<std::filesystem::path> folders{sources.content};
    folders.insert(folders.end(), sources.images.begin(), sources.images.end());
    folders.insert(folders.end(), sources.media.begin(), sources.media.end());
    for (const std::filesystem::path& folder : folders) {
        std::error_code failed;
        if (!std::filesystem::is_directory(folder, failed)) return folder;
    }
    return {};
}

int run(const contentc::Options& options) {
    contentc::Diagnostics diagnostics;
    const contentc::SourceTree tree = contentc::readSourceTree(options.sources, diagnostics);
    const auto files = contentc::compileContent(tree, diagnostics);
    for (const contentc::Diagnostic& diagnostic : diagnostics.sorted()) {
        std::cerr << contentc::toLine(diagnostic, contentc::localeLanguage()) << '\n';
    }
    if (!files) return failed;
    const auto written = contentc::writeDataFolder(*files, options.output);
    if (written) return done;
    std::cerr << "contentc: " << written.failure().message << '\n';
    return failed;
}

}  // namespace

int main(int argc, char* argv[]) {
    const auto options = contentc::parseOptions({argv + (argc > 0 ? 1 : 0), argv + argc});
    if (!options) {
        std::cerr << contentc::usageText;
        return wrongArguments;
    }
    const std::filesystem::path missing = missingFolder(options->sources);
    if (!missing.empty()) {
        std::cerr << "contentc: " << missing.generic_string() << ": no such folder\n";
        return wrongArguments;
    }
    return run(*options);
}
