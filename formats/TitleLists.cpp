#include "formats/TitleLists.h"

#include <array>

#include "formats/RecordFields.h"

namespace formats {
namespace {

constexpr std::array<TitleList, 11> titleListRows{{
    {1, "elem.ttl"},
    {2, "comp.ttl"},
    {4, "country.ttl"},
    {6, "mineral.ttl"},
    {8, "sci.ttl"},
    {11, "photo.ttl"},
    {12, "video.ttl"},
    {13, "mol.ttl"},
    {74, "history.ttl"},
    {76, "history.ttl"},
    {77, "history.ttl"},
}};

}  // namespace

std::span<const TitleList> titleListTable() { return titleListRows; }

std::optional<std::string_view> titleListFile(std::int32_t listNumber) {
    for (const TitleList& list : titleListRows) {
        if (list.listNumber == listNumber) return list.fileName;
    }
    return std::nullopt;
}

std::optional<std::size_t> titleListOffset(std::int32_t entryNumber) {
    if (entryNumber < 1) return std::nullopt;
    return (static_cast<std::size_t>(entryNumber) - 1) * titleListRecordSize;
}

std::optional<std::string> decodeEntryTitle(std::string_view bytes) {
    if (bytes.size() < titleListRecordSize) return std::nullopt;
    return std::string(readTextField(bytes.substr(0, titleListRecordSize)));
}

std::optional<std::string> entryTitle(std::string_view image, std::int32_t entryNumber) {
    const auto offset = titleListOffset(entryNumber);
    if (!offset || *offset > image.size()) return std::nullopt;
    return decodeEntryTitle(image.substr(*offset));
}

std::optional<std::string> encodeTitleList(std::span<const std::string> titles) {
    std::string image;
    image.reserve(titles.size() * titleListRecordSize);
    for (const std::string& title : titles) {
        if (!fitsTextField(title, titleListRecordSize)) return std::nullopt;
        appendTextField(image, title, titleListRecordSize);
    }
    return image;
}

}  // namespace formats
