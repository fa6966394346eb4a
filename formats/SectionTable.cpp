#include "formats/SectionTable.h"

#include <algorithm>
#include <array>

#include "platform/text/GreekLiteral.h"

namespace formats {
namespace {

using namespace platform::literals;

constexpr std::array<Section, 7> sectionRows{{
    {1, "react", "Αλλαγή των υλικών"_gr, 170070},
    {2, "struct", "Δομές"_gr, 370001},
    {3, "source", "Πηγές"_gr, 290000},
    {4, "uses", "Η χημεία στην πράξη"_gr, 400000},
    {5, "history", "Ιστορία"_gr, 320000},
    {6, "elemcomp", "Στοιχεία και ενώσεις"_gr, 410000},
    {7, "concept", "Έννοιες"_gr, 450000},
}};

}  // namespace

std::span<const Section, 7> sectionTable() { return sectionRows; }

const Section* sectionByCode(std::int16_t code) {
    for (const Section& section : sectionRows) {
        if (section.code == code) return &section;
    }
    return nullptr;
}

const Section* sectionByKey(std::string_view key) {
    for (const Section& section : sectionRows) {
        if (section.key == key) return &section;
    }
    return nullptr;
}

bool isStartPage(std::int32_t pageId) {
    constexpr std::int32_t startPageStep = 10'000;
    return pageId % startPageStep == 0 ||
           std::ranges::find(sectionRows, pageId, &Section::startPage) != sectionRows.end();
}

}  // namespace formats
