#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <variant>

#include "tools/contentc/source/Layers.h"

namespace contentc {

/// What `contentc` can be asked to do; `create` is the command `new`.
enum class Command { create, check, counts, build, open, watch, help, version };

/// What the command line asks for.
struct Options {
    Command command = Command::help;
    SourceFolders sources;
    /// Where the data folder goes.
    std::filesystem::path output;
    /// Where what other programs make is kept.
    std::filesystem::path cache;
    /// What a new folder is laid over; empty when it stands alone.
    std::string base;
    /// Whether warnings count as errors.
    bool strict = false;
    /// Whether `check` tells what topics lack.
    bool complete = false;
};

/// Reads the arguments without the program's name. The phrase says what is wrong with them.
std::variant<Options, Phrase> parseOptions(std::span<const char* const> arguments);

}  // namespace contentc
