#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tools/contentc/markdown/BodyContext.h"

namespace contentc {

/// A line `![what it shows](file "caption"){width}{side}`; the texts are parts of it.
struct FigureLine {
    std::string_view alternative;
    std::string_view file;
    std::string_view caption;
    /// In pixels; 0 for the picture's own.
    int width = 0;
    /// Whether text flows beside it.
    bool isBeside = false;
    /// What stands in braces and means nothing; empty when all is well.
    std::string_view unknown;
};

/// Reads a line that holds a picture only. Nothing for any other line.
std::optional<FigureLine> readFigure(std::string_view line);

/// The size of the picture of a figure, its width as the figure wants it. Nothing when there is no such
/// picture.
std::optional<PictureSize> sizeOf(const FigureLine& figure, const PictureSizes& pictures);

/// The picture's name in the data folder: drawings are shown as PNG.
std::string shownPicture(std::string_view file);

}  // namespace contentc
