#include "src/search/HitTitles.h"

#include <array>
#include <utility>

#include "formats/SectionTable.h"
#include "formats/SectionTitles.h"
#include "formats/TitleLists.h"
#include "src/search/IndexFileLimit.h"

namespace kalyxo {

namespace {

constexpr std::string_view kUnknownEntry = "?";

}  // namespace

HitTitles::HitTitles(const platform::FileSystem& files, std::string dataFolder)
    : m_files(files), m_dataFolder(std::move(dataFolder)) {}

std::string HitTitles::LookUpPageTitle(std::string_view key, std::int32_t pageId) {
    if (key.empty()) return {};
    const PageTitles& titles = pageTitles(key);
    const auto found = titles.find(pageId);
    return found == titles.end() ? std::string() : found->second;
}

std::string HitTitles::LookUpEntryTitle(std::int32_t itemCode) {
    const auto fileName = formats::titleListFile(formats::listNumberOf(itemCode));
    const auto offset = formats::titleListOffset(formats::entryNumberOf(itemCode));
    if (!fileName || !offset) return std::string(kUnknownEntry);
    const auto& list = titleList(*fileName);
    if (!list) return std::string(kUnknownEntry);
    std::array<char, formats::titleListRecordSize> record{};
    const std::size_t got = list->readAt(*offset, std::as_writable_bytes(std::span(record)));
    return formats::decodeEntryTitle({record.data(), got}).value_or(std::string(kUnknownEntry));
}

std::optional<HitTexts> HitTitles::MakeHitTexts(const SearchHit& hit) {
    const formats::Section* section = formats::sectionByCode(hit.sectionCode);
    if (!section) return std::nullopt;
    HitTexts texts{{}, std::string(section->displayName), {}};
    std::string pageTitle = LookUpPageTitle(section->key, hit.pageId);
    if (hit.itemCode == 0) {
        texts.name = std::move(pageTitle);
    } else {
        texts.subgroup = std::move(pageTitle);
        if (hit.itemCode > 0) texts.name = LookUpEntryTitle(hit.itemCode);
    }
    return texts;
}

const HitTitles::PageTitles& HitTitles::pageTitles(std::string_view key) {
    if (const auto known = m_pageTitles.find(key); known != m_pageTitles.end()) return known->second;
    PageTitles& titles = m_pageTitles[std::string(key)];
    const auto image =
        m_files.readAll(std::string(m_dataFolder).append(key).append(".dat"), kMaxIndexFileBytes);
    std::string_view rest = image ? std::string_view(*image) : std::string_view();
    while (auto record = formats::decodeSectionTitle(rest)) {
        titles.try_emplace(record->pageId, std::move(record->title));
        rest.remove_prefix(formats::sectionTitleRecordSize);
    }
    return titles;
}

const std::optional<platform::BinaryFile>& HitTitles::titleList(std::string_view fileName) {
    if (const auto known = m_titleLists.find(fileName); known != m_titleLists.end()) return known->second;
    auto file = platform::BinaryFile::open(m_files, std::string(m_dataFolder).append(fileName));
    return m_titleLists.emplace(fileName, std::move(file)).first->second;
}

}  // namespace kalyxo
