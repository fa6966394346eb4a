#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// A name used at a place.
struct Reference {
    SourcePlace place;
    std::string name;
};

/// A tool placed on a page, with the names of the settings given there.
struct ToolUse {
    SourcePlace place;
    std::string name;
    std::vector<std::string> settings;
};

/// What pages refer to, collected while they are compiled.
struct References {
    /// Glossary keys.
    std::vector<Reference> terms;
    /// Names of videos and molecules without folder and extension.
    std::vector<Reference> videos;
    std::vector<Reference> molecules;
    std::vector<ToolUse> tools;
    /// Files of the data folder, as written behind `{{data}}`.
    std::vector<Reference> dataPaths;

    /// Adds what another page refers to.
    void add(References more) {
        const auto append = [](auto& list, auto& added) {
            std::ranges::move(added, std::back_inserter(list));
        };
        append(terms, more.terms);
        append(videos, more.videos);
        append(molecules, more.molecules);
        append(tools, more.tools);
        append(dataPaths, more.dataPaths);
    }
};

}  // namespace contentc
