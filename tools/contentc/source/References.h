#pragma once

#include <string>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// A name used at a place.
struct Reference {
    SourcePlace place;
    std::string name;
};

/// What pages refer to, collected while they are compiled.
struct References {
    /// Glossary keys.
    std::vector<Reference> terms;
    /// Names of videos and molecules without folder and extension.
    std::vector<Reference> videos;
    std::vector<Reference> molecules;
    /// Names of tools, which are folders of scripts.
    std::vector<Reference> tools;
    /// Files of the data folder, as written behind `{{data}}`.
    std::vector<Reference> dataPaths;
};

}  // namespace contentc
