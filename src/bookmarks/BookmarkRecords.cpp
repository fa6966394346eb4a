#include "src/bookmarks/BookmarkRecords.h"

#include <algorithm>
#include <utility>

#include "platform/base/Archive.h"

namespace kalyxo {

using platform::CArchive;
using platform::CRuntimeClass;
using platform::MakeRuntimeClass;

namespace {

constexpr std::uint16_t kSchema = 1;

/// A new record with this name.
template <class Record>
// NOLINTNEXTLINE(performance-unnecessary-value-param): it is moved from
std::unique_ptr<Record> named(std::string name) {
    auto record = std::make_unique<Record>();
    record->name = std::move(name);
    return record;
}

}  // namespace

const CRuntimeClass CBMFolder::runtimeClass = MakeRuntimeClass<CBMFolder>("CBMFolder", kSchema);
const CRuntimeClass CBMBrowse::runtimeClass = MakeRuntimeClass<CBMBrowse>("CBMBrowse", kSchema);
const CRuntimeClass CBMPeriodic::runtimeClass = MakeRuntimeClass<CBMPeriodic>("CBMPeriodic", kSchema);
const CRuntimeClass CBMDataAn::runtimeClass = MakeRuntimeClass<CBMDataAn>("CBMDataAn", kSchema);

bool IsFolder(const CBookmark& record) { return record.IsKindOf(CBMFolder::runtimeClass); }

void CBMFolder::Serialize(CArchive& archive) { archive.Exchange(name); }

std::unique_ptr<CBookmark> CBMFolder::Renamed(std::string newName) const {
    return named<CBMFolder>(std::move(newName));
}

void CBMBrowse::Serialize(CArchive& archive) { archive.Exchange(pageId, itemCode, sectionCode, name); }

std::unique_ptr<CBookmark> CBMBrowse::Renamed(std::string newName) const {
    auto record = named<CBMBrowse>(std::move(newName));
    const PageAddress& place = *this;
    static_cast<PageAddress&>(*record) = place;
    return record;
}

void CBMPeriodic::Serialize(CArchive& archive) { archive.Exchange(stateA, stateB, name); }

std::unique_ptr<CBookmark> CBMPeriodic::Renamed(std::string newName) const {
    auto record = named<CBMPeriodic>(std::move(newName));
    record->stateB = stateB;
    record->stateA = stateA;
    return record;
}

void CBMDataAn::Serialize(CArchive& archive) {
    archive.Exchange(name, mode, viewMode, flag5, option3, flag6, option4, option7, value8, value9);
    exchangeBlocks(archive);
}

void CBMDataAn::exchangeBlocks(CArchive& archive) {
    archive.ExchangeElements(value11, static_cast<std::size_t>(std::max(value8, 0)));
    std::int32_t count = entryBlock.front();
    archive.Exchange(count);
    if (count < 1) return archive.Fail();
    entryBlock.front() = count;
    archive.ExchangeElements(entryBlock, static_cast<std::size_t>(count), 1);
    archive.ExchangeElements(entries, static_cast<std::size_t>(count) - 1);
}

std::unique_ptr<CBookmark> CBMDataAn::Renamed(std::string newName) const {
    auto record = named<CBMDataAn>(std::move(newName));
    const AnalyserState& state = *this;
    static_cast<AnalyserState&>(*record) = state;
    return record;
}

}  // namespace kalyxo
