#pragma once

#include <functional>
#include <map>
#include <string>

#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// The size of a picture as it is shown, in pixels.
struct PictureSize {
    int width = 0;
    int height = 0;

    bool operator==(const PictureSize&) const = default;
};

/// The pictures of the sources by file name, such as `ph-scale.svg`. The size of one that cannot be read is 0
/// × 0.
using PictureSizes = std::map<std::string, PictureSize, std::less<>>;

/// The sizes of all pictures of the sources.
PictureSizes readPictureSizes(const SourceTree& tree);

}  // namespace contentc
