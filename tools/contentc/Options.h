#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// What the command line asks for.
struct Options {
    SourceFolders sources;
    std::filesystem::path output;
};

inline constexpr std::string_view usageText =
    "usage: contentc SOURCE-FOLDER OUTPUT-FOLDER [--images FOLDER]... [--media FOLDER]...\n"
    "Compiles the content sources into a data folder.\n"
    "  --images FOLDER   pictures to copy: the main menu's (*.bmp) and rendered drawings (*.png)\n"
    "  --media FOLDER    rendered videos to copy (*.webm)\n";

/// Reads the arguments without the program's name. Nothing when they are wrong.
std::optional<Options> parseOptions(std::span<const char* const> arguments);

}  // namespace contentc
