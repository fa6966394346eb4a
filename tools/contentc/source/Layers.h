#pragma once

#include <filesystem>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// Where the program's own content lies; empty paths where it is not installed.
struct InstalledContent {
    /// The sources.
    std::filesystem::path sources;
    /// The data folder made of them.
    std::filesystem::path data;
};

/// Where the sources lie.
struct SourceFolders {
    std::filesystem::path content;
    /// Folders with pictures made by the build: the main menu's (*.bmp) and rendered drawings (*.png).
    std::vector<std::filesystem::path> images;
    /// Folders with rendered videos.
    std::vector<std::filesystem::path> media;
    InstalledContent installed = {};
};

/// A folder of sources.
struct Layer {
    std::filesystem::path folder;
    /// Only what every content needs is taken: templates, styles, tools, lists of words, the hidden start
    /// page and the pictures of the main menu.
    bool onlyEquipment = false;
    /// Folders with pictures and videos that were made of the layer's sources.
    std::vector<std::filesystem::path> images;
    std::vector<std::filesystem::path> media;
};

/// The name of the file in a content folder that says on what it is built: lines `base: FOLDER` (`βάση:
/// ΦΑΚΕΛΟΣ`), where `kalyxo` stands for the content of the installed program.
inline constexpr const char* layerFileName = "kalyxo.content";

/// The layers from the author's own folder down: what a higher one has is not taken from a lower one. The
/// lowest is what the installed program gives to every content. Reports lines and folders that are wrong.
std::vector<Layer> findLayers(const SourceFolders& folders, Diagnostics& diagnostics);

}  // namespace contentc
