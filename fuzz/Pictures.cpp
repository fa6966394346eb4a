#include <cstring>

#include "fuzz/Target.h"
#include "platform/drawing/DC.h"
#include "src/display/BitmapPalette.h"
#include "src/display/Picture.h"
#include "tests/support/TestDrives.h"

namespace {

platform::CBitmap canvas() {
    platform::CBitmap bitmap;
    const std::vector<std::byte> pixels(64 * 64 * 3);
    platform::BITMAPINFOHEADER header;
    header.biWidth = header.biHeight = 64;
    bitmap.CreateDIBitmap(header, {}, pixels);
    return bitmap;
}

void draw(const kalyxo::Picture& picture) {
    static const platform::CBitmap bitmap = canvas();
    platform::CDC dc;
    dc.SelectObject(bitmap);
    picture.DrawPicture(dc, -3, 5);
}

/// The picture that stands behind a header of 40 bytes and its colours, as in the program's own resources.
void makeBitmap(std::span<const std::byte> bytes) {
    platform::BITMAPINFOHEADER header;
    std::uint32_t colours = 0;
    const auto palette = kalyxo::CreatePaletteFromHeader(bytes, colours);
    if (bytes.size() < sizeof(header)) return;
    std::memcpy(&header, bytes.data(), sizeof(header));
    platform::CBitmap bitmap;
    const std::size_t table = palette ? palette->size() * 4 : 0;
    bitmap.CreateDIBitmap(header, palette ? *palette : std::vector<platform::PALETTEENTRY>(),
                          bytes.subspan(sizeof(header) + table));
}

}  // namespace

/// A picture file of the data folder, drawn; its header with the colours behind it.
void fuzz::tryInput(std::string_view input) {
    static TestDrives drives;
    drives.put("D:\\p.bmp", std::string(input));
    kalyxo::Picture picture;
    const auto result = picture.LoadPicture(drives.files, "D:\\p.bmp");
    require(picture.Loaded() == (result == kalyxo::PictureResult::loaded), "only a whole picture is loaded");
    draw(picture);
    constexpr std::size_t fileHeader = 14;
    makeBitmap(std::as_bytes(std::span(input.substr(std::min(fileHeader, input.size())))));
}
