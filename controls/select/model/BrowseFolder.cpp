#include "controls/select/model/BrowseFolder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "formats/SectionTable.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "platform/files/BinaryFile.h"

namespace controls::select {

namespace {

// No content has larger files.
constexpr std::size_t maxFileSize = std::size_t{16} << 20;

}  // namespace

BrowseFolder::BrowseFolder(const platform::FileSystem& files, std::string folder)
    : files_(files), folder_(std::move(folder)) {}

std::string BrowseFolder::path(std::string_view name) const { return folder_ + std::string(name); }

formats::BrowseIndex BrowseFolder::readIndex() const {
    const auto image = files_.readAll(path(formats::browseIndexFile), maxFileSize);
    auto index = image ? formats::decodeBrowseIndex(*image) : std::nullopt;
    return index ? *std::move(index) : readTitleFiles();
}

formats::BrowseIndex BrowseFolder::readTitleFiles() const {
    std::vector<std::string> images;
    images.reserve(formats::sectionTable().size());
    for (const formats::Section& section : formats::sectionTable())
        images.push_back(readTitleFile(section.key));
    std::vector<formats::SectionTitleFile> titleFiles;
    titleFiles.reserve(images.size());
    for (std::size_t i = 0; i < images.size(); ++i) {
        titleFiles.push_back({formats::sectionTable()[i].code, images[i]});
    }
    return formats::browseIndexFromTitles(titleFiles);
}

std::string BrowseFolder::readTitleFile(std::string_view sectionKey) const {
    return files_.readAll(path(std::string(sectionKey) + ".dat"), maxFileSize).value_or(std::string());
}

std::string BrowseFolder::pageTitle(std::int16_t section, std::int32_t pageId) const {
    const formats::Section* current = formats::sectionByCode(section);
    std::string title = current ? titleIn(current->key, pageId) : std::string();
    for (const formats::Section& other : formats::sectionTable()) {
        if (title.empty() && other.code != section) title = titleIn(other.key, pageId);
    }
    return title;
}

std::string BrowseFolder::titleIn(std::string_view sectionKey, std::int32_t pageId) const {
    const auto records = formats::decodeSectionTitles(readTitleFile(sectionKey));
    const auto found = std::ranges::find(records, pageId, &formats::SectionTitleRecord::pageId);
    return found == records.end() ? std::string() : found->title;
}

std::string BrowseFolder::entryTitle(std::int32_t itemCode) const {
    const auto name = formats::titleListFile(formats::listNumberOf(itemCode));
    const auto offset = formats::titleListOffset(formats::entryNumberOf(itemCode));
    const auto file = name && offset ? platform::BinaryFile::open(files_, path(*name)) : std::nullopt;
    if (!file) return {};
    std::array<char, formats::titleListRecordSize> record{};
    const std::size_t length = file->readAt(*offset, std::as_writable_bytes(std::span(record)));
    return formats::decodeEntryTitle({record.data(), length}).value_or(std::string());
}

}  // namespace controls::select
