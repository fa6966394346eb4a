#pragma once

#include "src/pages/History.h"
#include "src/view/ContentHost.h"

namespace kalyxo {

/// How the program comes to a page: by its section, its number, or its topic, and by Back and Forward. It
/// knows what is on show and what was before; the host shows it.
class Navigator {
  public:
    explicit Navigator(ContentHost& host) : m_host(host) {}

    /// What page mode shows; keeps its last value in the other modes.
    const PageAddress& Address() const { return m_address; }
    const History& Places() const { return m_history; }

    /// Shows a section in page mode and, unless `pageNumber` is 0, opens that page.
    void OpenSection(std::int16_t sectionCode, std::int32_t pageNumber);
    /// Opens the start page of a section, a code from 1 to 7.
    void OpenStartPage(std::int16_t sectionCode);
    /// Records the current address and shows a page.
    void OpenPage(std::int32_t pageNumber);
    /// Shows a place that was kept: a start page at once, any other through the browse selection.
    void OpenPlace(const PageAddress& place);
    /// Shows a place through the browse selection, whose answer makes it the current address.
    void OpenTopic(const PageAddress& place);

    /// The browse selection's answer: the page of a topic, or one of the topic's entries.
    void OnPageChosen(std::int32_t pageNumber, std::int32_t pageId);
    void OnItemChosen(std::int32_t itemCode);

    /// Adds a place to the history, unless one of its places is being shown again.
    void RecordHistory(const PageAddress& place);
    void GoBack();
    void GoForward();
    /// Shows the place on show once more, without a new one in the history.
    void ShowAgain();

  private:
    void keepScrolled() { m_history.KeepScrolled(m_host.Scrolled()); }
    void ReplayHistory();
    void restorePage(const PageAddress& place);

    ContentHost& m_host;
    PageAddress m_address;
    History m_history;
};

}  // namespace kalyxo
