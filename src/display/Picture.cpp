#include "src/display/Picture.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "platform/files/BinaryFile.h"

namespace kalyxo {

using platform::BinaryFile;
using platform::BITMAPINFOHEADER;

namespace {

/// Pixels for each coordinate in the sharper of two files.
constexpr int kSharpScale = 2;

/// A picture of 8192 × 8192 pixels; larger ones are refused before they are read.
constexpr std::uint64_t kMaxPixelBytes = std::uint64_t{8192} * 8192 * 3;

/// Offsets in a BMP file.
constexpr std::uint64_t kPixelOffsetAt = 10;
constexpr std::uint64_t kHeaderAt = 14;
static_assert(sizeof(BITMAPINFOHEADER) == 40, "the header is read as it stands in the file");

template <class T>
bool readAt(const BinaryFile& file, std::uint64_t offset, T& value) {
    return file.readAt(offset, std::as_writable_bytes(std::span(&value, 1))) == sizeof(T);
}

/// The length of a row in bytes: three for each pixel, rounded up to a multiple of 4.
constexpr std::uint64_t rowBytes(std::int32_t width) {
    return (static_cast<std::uint64_t>(width) * 3 + 3) / 4 * 4;
}

/// The size of the pixels in bytes. Nothing when the kind of picture is not supported or the file is too
/// short.
std::optional<std::uint64_t> pixelBytes(const BITMAPINFOHEADER& header, std::uint64_t available) {
    if (header.biBitCount != 24 || header.biCompression != 0) return std::nullopt;
    if (header.biWidth <= 0 || header.biHeight <= 0) return std::nullopt;
    // A product of the two could overflow, a division cannot.
    const std::uint64_t stride = rowBytes(header.biWidth);
    const auto rows = static_cast<std::uint64_t>(header.biHeight);
    if (rows > std::min(available, kMaxPixelBytes) / stride) return std::nullopt;
    return rows * stride;
}

}  // namespace

PictureResult Picture::LoadPicture(const platform::FileSystem& files, std::string_view path) {
    const PictureResult result = load(files, path);
    if (result == PictureResult::loaded && platform::PictureScale() == kSharpScale) takeSharper(files, path);
    return result;
}

void Picture::takeSharper(const platform::FileSystem& files, std::string_view path) {
    const std::size_t dot = path.rfind('.');
    if (dot == path.npos) return;
    Picture sharper;
    const std::string name = std::string(path.substr(0, dot)).append("-2x").append(path.substr(dot));
    if (sharper.load(files, name) != PictureResult::loaded) return;
    const platform::CSize size = sharper.Size();
    if (size.cx != Size().cx * kSharpScale || size.cy != Size().cy * kSharpScale) return;
    sharper.m_scale = kSharpScale;
    *this = std::move(sharper);
}

PictureResult Picture::load(const platform::FileSystem& files, std::string_view path) {
    const std::optional<BinaryFile> file = BinaryFile::open(files, path);
    if (!file) return PictureResult::missing;
    m_pixels.reset();
    m_scale = 1;
    std::uint32_t pixelOffset = 0;
    BITMAPINFOHEADER header;
    if (!readAt(*file, kPixelOffsetAt, pixelOffset) || !readAt(*file, kHeaderAt, header) ||
        pixelOffset > file->size()) {
        return PictureResult::fileError;
    }
    const std::optional<std::uint64_t> bytes = pixelBytes(header, file->size() - pixelOffset);
    if (!bytes) return PictureResult::fileError;
    try {
        // Not initialised, because the bytes of the file follow at once.
        m_pixels = std::make_unique_for_overwrite<std::uint8_t[]>(*bytes);
    } catch (const std::bad_alloc&) {
        return PictureResult::outOfMemory;
    }
    if (file->readAt(pixelOffset, std::as_writable_bytes(std::span(m_pixels.get(), *bytes))) != *bytes) {
        m_pixels.reset();
        return PictureResult::fileError;
    }
    m_header = header;
    return PictureResult::loaded;
}

platform::CSize Picture::Size() const {
    return Loaded() ? platform::CSize{m_header.biWidth / m_scale, m_header.biHeight / m_scale}
                    : platform::CSize{};
}

void Picture::DrawPicture(platform::CDC& dc, int x, int y) const {
    if (Loaded()) dc.SetDIBitsToDevice(x, y, m_header, m_pixels.get(), m_scale);
}

}  // namespace kalyxo
