#include "tools/contentc/commands/NewFolder.h"

#include <fstream>
#include <iostream>
#include <system_error>

#include "tools/contentc/DataFolderMessages.h"
#include "tools/contentc/commands/CommandMessages.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;

bool complain(const fs::path& path, const Phrase& fault) {
    std::cerr << path.generic_string() << ": " << fault.in(localeLanguage()) << '\n';
    return false;
}

/// Copies what belongs to every new folder, and then what belongs to its kind.
void copyStarter(const fs::path& starter, const char* kind, const fs::path& folder, std::error_code& failed) {
    fs::create_directories(folder, failed);
    for (const char* part : {"all", kind}) {
        if (!failed) fs::copy(starter / part, folder, fs::copy_options::recursive, failed);
    }
}

/// A base is written as seen from the folder.
std::string baseLine(const Options& options) {
    const bool isFolder = options.base != "kalyxo";
    const fs::path base =
        isFolder ? fs::relative(options.base, options.sources.content) : fs::path(options.base);
    return "βάση: " + base.generic_string() + '\n';
}

}  // namespace

bool makeNewFolder(const Options& options, const InstalledProgram& installed) {
    const fs::path& folder = options.sources.content;
    std::error_code failed;
    if (installed.starter.empty()) return complain(folder, {say::noStarter, {}});
    if (fs::exists(folder, failed) && !(fs::is_directory(folder, failed) && fs::is_empty(folder, failed)))
        return complain(folder, {say::isNotEmpty, {}});
    if (!options.base.empty() && options.base != "kalyxo" && !fs::is_directory(options.base, failed))
        return complain(options.base, {say::noSuchFolder, {}});
    copyStarter(installed.starter, options.base.empty() ? "own" : "over", folder, failed);
    if (failed) return complain(folder, {say::cannotBeWritten, {failed.message()}});
    if (!options.base.empty()) {
        std::ofstream file(folder / layerFileName, std::ios::app);
        file << baseLine(options);
        if (!file.flush()) return complain(folder / layerFileName, {say::mayNotBeWritten, {}});
    }
    std::cout << Phrase{say::isNew, {folder.generic_string()}}.in(localeLanguage()) << '\n';
    return true;
}

}  // namespace contentc
