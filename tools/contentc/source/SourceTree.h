#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"
#include "tools/contentc/source/Layers.h"
#include "tools/contentc/source/SourceFile.h"

namespace contentc {

/// The pages of one section.
struct SectionFolder {
    /// The name of the folder: a section key, if the author made no mistake.
    SourceFile folder;
    std::vector<SourceFile> pages;
};

/// The source files of a data folder, those of all layers together. Each list is sorted by name.
struct SourceTree {
    /// The author's own folder.
    std::filesystem::path root;
    std::optional<SourceFile> startPage;
    std::optional<SourceFile> helpPage;
    std::optional<SourceFile> pageTemplate;
    std::optional<SourceFile> moleculeTemplate;
    std::optional<SourceFile> style;
    /// What is told of the families of elements; pages of elements are made from it.
    std::optional<SourceFile> families;
    std::optional<SourceFile> stopWords;
    std::optional<SourceFile> wordForms;
    /// Words that are not to be used in the author's own folder.
    std::optional<SourceFile> terminology;
    std::vector<SectionFolder> sections;
    /// The data analyser's data sets.
    std::vector<SourceFile> dataSets;
    /// Of all layers: a term of a higher one takes the place of one with its name, not of a whole file.
    std::vector<SourceFile> terms;
    std::vector<SourceFile> molecules;
    /// Scripts, style sheets and lists of settings of the tools in pages, which lie in a folder for each
    /// tool.
    std::vector<SourceFile> tools;
    /// Drawings of which no picture has been made yet.
    std::vector<SourceFile> drawings;
    /// Drawings whose pictures have been made. They tell how large these are shown.
    std::vector<SourceFile> drawnDrawings;
    /// Pictures that are copied.
    std::vector<SourceFile> pictures;
    /// Descriptions of films that have not been made yet.
    std::vector<SourceFile> films;
    /// Videos of other kinds than those that are copied; without their bytes.
    std::vector<SourceFile> foreignVideos;
    /// Videos that are copied.
    std::vector<SourceFile> videos;
};

/// Reads the files of all layers. Reports those that cannot be read, and those in the author's own folder
/// that are of no use there.
SourceTree readSourceTree(const SourceFolders& folders, Diagnostics& diagnostics);

}  // namespace contentc
