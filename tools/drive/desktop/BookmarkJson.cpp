#include "tools/drive/desktop/BookmarkJson.h"

namespace drive {

using namespace kalyxo;

namespace {

Json bytesJson(const std::vector<std::byte>& bytes) {
    Json numbers = Json::array();
    for (const std::byte byte : bytes) numbers.push_back(std::to_integer<int>(byte));
    return numbers;
}

void tellFields(Json& json, const CBMBrowse& page) {
    json["itemCode"] = page.itemCode;
    json["pageId"] = page.pageId;
    json["sectionCode"] = page.sectionCode;
}

void tellFields(Json& json, const CBMPeriodic& table) {
    json["stateB"] = table.stateB;
    json["stateA"] = table.stateA;
}

void tellFields(Json& json, const CBMDataAn& analyser) {
    json["mode"] = analyser.mode;
    json["entryBlock"] = analyser.entryBlock;
    json["viewMode"] = analyser.viewMode;
    json["option3"] = analyser.option3;
    json["flag5"] = analyser.flag5;
    json["flag6"] = analyser.flag6;
    json["option4"] = analyser.option4;
    json["option7"] = analyser.option7;
    json["value8"] = analyser.value8;
    json["value9"] = analyser.value9;
    json["value11"] = bytesJson(analyser.value11);
    json["entries"] = analyser.entries;
}

template <class Record>
void tellIf(Json& json, const CBookmark& record) {
    if (const auto* const known = dynamic_cast<const Record*>(&record)) tellFields(json, *known);
}

}  // namespace

Json bookmarksJson(const BookmarkList& list) {
    Json records = Json::array();
    for (const auto& record : list.Records()) {
        Json json = {{"class", record->GetRuntimeClass().name}, {"name", text(record->name)}};
        tellIf<CBMBrowse>(json, *record);
        tellIf<CBMPeriodic>(json, *record);
        tellIf<CBMDataAn>(json, *record);
        records.push_back(std::move(json));
    }
    return records;
}

}  // namespace drive
