#pragma once

#include <array>
#include <string>
#include <string_view>

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// The endings of molecule files' names, in small letters.
inline constexpr std::array<std::string_view, 6> kMoleculeEndings = {"mol", "sdf", "xyz",
                                                                     "pdb", "ent", "cml"};

/// The name of the copy, which lies beside the prepared page.
inline constexpr std::string_view kMoleculeCopy = "chime.mol";

/// Copies a molecule file beside the prepared page. Only a file that lies below the data folder, has the
/// ending of a molecule and is not too large is copied: pages may name any file. False when there is no whole
/// copy; a former one then stays.
bool CopyMolecule(const platform::FileSystem& files, std::string_view dataFolder, std::string_view molecule,
                  std::string_view preparedPage);

}  // namespace kalyxo
