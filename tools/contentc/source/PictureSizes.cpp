#include "tools/contentc/source/PictureSizes.h"

#include <charconv>
#include <string_view>

namespace contentc {
namespace {

// Of sides up to it and a width for the page, products fit into 32 bits.
constexpr int maxSide = 0xFFFF;

/// A number of `size` bytes, the highest first. 0 beyond the end.
int bigEndian(std::string_view bytes, std::size_t at, std::size_t size) {
    if (at + size > bytes.size()) return 0;
    unsigned value = 0;
    for (std::size_t i = 0; i < size; ++i) value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
    return value <= maxSide ? static_cast<int>(value) : 0;
}

PictureSize sizeOfPng(std::string_view bytes) { return {bigEndian(bytes, 16, 4), bigEndian(bytes, 20, 4)}; }

/// Looks for the frame among the segments.
PictureSize sizeOfJpeg(std::string_view bytes) {
    for (std::size_t at = 2; at + 9 < bytes.size() && bytes[at] == '\xFF';) {
        const auto kind = static_cast<unsigned char>(bytes[at + 1]);
        const bool isFrame = kind >= 0xC0 && kind <= 0xCF && kind != 0xC4 && kind != 0xC8 && kind != 0xCC;
        if (isFrame) return {bigEndian(bytes, at + 7, 2), bigEndian(bytes, at + 5, 2)};
        at += 2 + static_cast<std::size_t>(bigEndian(bytes, at + 2, 2));
    }
    return {};
}

/// The value of an attribute of a tag, as a number without its fraction; 0 when there is none.
int attribute(std::string_view tag, std::string_view name) {
    const std::size_t at = tag.find(std::string(" ").append(name).append("=\""));
    if (at == std::string_view::npos) return 0;
    const char* begin = tag.data() + at + name.size() + 3;
    int value = 0;
    std::from_chars(begin, tag.data() + tag.size(), value);
    return value <= maxSide ? value : 0;
}

PictureSize sizeOfSvg(std::string_view bytes) {
    const std::size_t begin = bytes.find("<svg");
    if (begin == std::string_view::npos) return {};
    const std::string_view tag = bytes.substr(begin, bytes.find('>', begin) - begin);
    return {attribute(tag, "width"), attribute(tag, "height")};
}

/// The size that a drawing (SVG) names, or that a PNG or JPEG file has, by the file's bytes; 0 × 0 when they
/// tell none.
PictureSize pictureSize(std::string_view bytes) {
    PictureSize size;
    if (bytes.starts_with("\x89PNG")) {
        size = sizeOfPng(bytes);
    } else if (bytes.starts_with("\xFF\xD8")) {
        size = sizeOfJpeg(bytes);
    } else {
        size = sizeOfSvg(bytes);
    }
    if (size.width <= 0 || size.height <= 0) return {};
    return size;
}

}  // namespace

PictureSizes readPictureSizes(const SourceTree& tree) {
    PictureSizes sizes;
    for (const auto* files : {&tree.drawings, &tree.drawnDrawings, &tree.pictures}) {
        for (const SourceFile& file : *files) sizes.try_emplace(file.name(), pictureSize(file.bytes));
    }
    return sizes;
}

}  // namespace contentc
