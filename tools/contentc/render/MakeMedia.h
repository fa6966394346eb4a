#pragma once

#include <functional>

#include "tools/contentc/render/MadeFiles.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Is told how many of all are done.
using ProgressReport = std::function<void(std::size_t done, std::size_t all)>;

/// Makes the pictures of drawings and the videos of films and of videos of other kinds, with the programs
/// rsvg-convert and ffmpeg, several at a time; what was made before is taken from `made`. They go from the
/// lists of sources to those of pictures and videos. What cannot be made is reported.
void makeMedia(SourceTree& tree, const MadeFiles& made, const ProgressReport& report,
               Diagnostics& diagnostics);

/// Lists all media as if they had been made, so that what refers to them can be checked.
void pretendMedia(SourceTree& tree);

}  // namespace contentc
