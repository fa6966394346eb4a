#include "src/pages/MoleculeCopy.h"

#include <algorithm>
#include <cstdint>

#include "platform/files/DosPath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/ReplaceFile.h"
#include "platform/text/CodePage1253.h"

namespace kalyxo {

namespace {

/// The largest molecules that the viewer shows have some 16 MB.
constexpr std::uint64_t kMaxMoleculeBytes = std::uint64_t{32} << 20;

bool isMoleculeName(std::string_view path) {
    const std::size_t stop = path.find_last_of(".\\");
    if (stop == std::string_view::npos || path[stop] != '.') return false;
    const std::string ending = platform::toLower(path.substr(stop + 1));
    return std::ranges::find(kMoleculeEndings, ending) != kMoleculeEndings.end();
}

}  // namespace

bool CopyMolecule(const platform::FileSystem& files, std::string_view dataFolder, std::string_view molecule,
                  std::string_view preparedPage) {
    const std::size_t slash = preparedPage.rfind('\\');
    if (slash == std::string_view::npos || slash == 0) return false;
    const auto source = platform::canonicalDosPath(molecule);
    if (!source || !platform::liesBelow(*source, dataFolder) || !isMoleculeName(*source)) return false;
    platform::FileHandle file = files.openForReading(*source);
    const auto copy = files.nativePath(std::string(preparedPage.substr(0, slash + 1)).append(kMoleculeCopy));
    return file && file.size() <= kMaxMoleculeBytes && copy && platform::copyFileOver(file, *copy);
}

}  // namespace kalyxo
