#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// A file as it was read.
struct SourceFile {
    std::filesystem::path path;
    std::string bytes;

    /// The file's name without folder.
    std::string name() const { return path.filename().string(); }
    /// The file's name without folder and extension.
    std::string stem() const { return path.stem().string(); }
    /// A line of the file, for messages.
    SourcePlace place(int line = 1) const { return {path.generic_string(), line}; }
};

/// The pages of one section.
struct SectionFolder {
    /// The name of the folder: a section key, if the author made no mistake.
    SourceFile folder;
    std::vector<SourceFile> pages;
};

/// The source files of a data folder. Each list is sorted by path.
struct SourceTree {
    std::filesystem::path root;
    std::optional<SourceFile> startPage;
    std::optional<SourceFile> helpPage;
    std::optional<SourceFile> pageTemplate;
    std::optional<SourceFile> moleculeTemplate;
    std::optional<SourceFile> style;
    std::optional<SourceFile> elements;
    std::optional<SourceFile> stopWords;
    std::optional<SourceFile> wordForms;
    std::vector<SectionFolder> sections;
    /// The data analyser's data sets.
    std::vector<SourceFile> dataSets;
    std::vector<SourceFile> terms;
    std::vector<SourceFile> molecules;
    /// Scripts, style sheets and lists of settings of the tools in pages, which lie in a folder for each
    /// tool.
    std::vector<SourceFile> tools;
    /// Drawings that have to be rendered beforehand; only their names count.
    std::vector<SourceFile> drawings;
    /// Pictures that are copied: those of the sources and those made by the build.
    std::vector<SourceFile> pictures;
    /// Videos that are copied; made by the build.
    std::vector<SourceFile> videos;
};

/// Where the sources lie.
struct SourceFolders {
    std::filesystem::path content;
    /// Folders with pictures made by the build: the main menu's and rendered drawings.
    std::vector<std::filesystem::path> images;
    /// Folders with rendered videos.
    std::vector<std::filesystem::path> media;
};

/// Reads all files. Reports those that cannot be read, and those in folders where they are of no use.
SourceTree readSourceTree(const SourceFolders& folders, Diagnostics& diagnostics);

}  // namespace contentc
