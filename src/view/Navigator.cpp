#include "src/view/Navigator.h"

#include "formats/SectionTable.h"

namespace kalyxo {

void Navigator::OpenSection(std::int16_t sectionCode, std::int32_t pageNumber) {
    const bool needLayout = m_host.EnterPageMode(sectionCode);
    m_address.sectionCode = sectionCode;
    // The page is opened before the panes are laid out.
    if (pageNumber > 0) OpenPage(pageNumber);
    if (needLayout) m_host.LayOutPage();
}

void Navigator::OpenStartPage(std::int16_t sectionCode) {
    m_address.pageId = formats::sectionByCode(sectionCode)->startPage;
    m_address.itemCode = 0;
    OpenSection(sectionCode, m_address.pageId);
}

void Navigator::OpenPage(std::int32_t pageNumber) {
    RecordHistory(m_address);
    m_host.ShowPage(pageNumber, m_history.Scrolled());
}

void Navigator::OpenPlace(const PageAddress& place) {
    m_address = place;
    if (formats::isStartPage(place.pageId)) {
        OpenSection(place.sectionCode, place.pageId);
    } else {
        OpenTopic(place);
    }
}

void Navigator::OpenTopic(const PageAddress& place) {
    OpenSection(place.sectionCode, 0);
    m_address.pageId = place.pageId;
    m_host.ShowItem(place.pageId, place.itemCode);
}

void Navigator::OnPageChosen(std::int32_t pageNumber, std::int32_t pageId) {
    m_address.pageId = pageId;
    m_address.itemCode = 0;
    OpenPage(pageNumber);
}

void Navigator::OnItemChosen(std::int32_t itemCode) {
    m_address.itemCode = itemCode;
    OpenPage(itemCode);
}

void Navigator::RecordHistory(const PageAddress& place) {
    keepScrolled();
    m_history.Record(place);
}

void Navigator::GoBack() {
    keepScrolled();
    if (m_history.StepBack()) ReplayHistory();
}

void Navigator::GoForward() {
    keepScrolled();
    if (m_history.StepForward()) ReplayHistory();
}

void Navigator::ShowAgain() {
    keepScrolled();
    ReplayHistory();
}

void Navigator::ReplayHistory() {
    const History::Replay replay(m_history);
    const PageAddress place = m_history.Current();
    if (place.sectionCode == kPeriodicTableCode) {
        m_host.ShowPeriodicTable();
    } else if (place.sectionCode == kDataAnalyserCode) {
        m_host.ShowDataAnalyser(nullptr);
    } else if (formats::sectionByCode(place.sectionCode) != nullptr) {
        restorePage(place);
    }
}

/// However the page was opened, the browse selection has the last word: it marks the topic in its list, and
/// its answer decides which page stays on show.
void Navigator::restorePage(const PageAddress& place) {
    OpenPlace(place);
    m_host.ShowItem(place.pageId, place.itemCode);
}

}  // namespace kalyxo
