#pragma once

#include <optional>

#include "formats/PageLink.h"
#include "platform/framework/View.h"
#include "src/components/ElementIndex.h"
#include "src/display/ToolPanel.h"
#include "src/pages/ContentChanges.h"
#include "src/pages/OnlinePages.h"
#include "src/search/SearchState.h"
#include "src/view/BookmarkCommands.h"
#include "src/view/CommandRules.h"
#include "src/view/EditCommands.h"
#include "src/view/ViewInspection.h"

namespace kalyxo {

/// The one content window: the section bar above, and below it the main menu, a component, or a page beside
/// its topics. It turns messages, commands and component events into calls of the objects it owns.
class CKalyxoView : public platform::CView, private ContentHost {
  public:
    CKalyxoView();
    ~CKalyxoView() override;

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;
    const platform::EventSinkMap* GetEventSinkMap() const override;

    bool OnCommand(platform::WPARAM wParam, platform::LPARAM lParam) override;
    void OnInitialUpdate() override;
    void OnDraw(platform::CDC& dc) override;
    std::vector<platform::DrawnPart> DrawnParts() const override { return m_items.Parts(); }
    void PushDrawnPart(int index) override { openSlot(OpenableItems::SlotFor(index)); }
    /// Chooses the first item, so that the user sees where the arrow keys start.
    void OnTabbedTo() override { chooseByArrow(platform::VK_RIGHT); }
    /// Has the periodic table drawn anew, since the frame has been minimised.
    void OnFrameMinimised() { m_components.periodicTable.Redraw(); }

    ViewInspection Inspection() const;

  private:
    // Window messages
    void OnSize(platform::UINT type, int width, int height);
    bool OnSetCursor() { return m_items.ShowHand(); }
    void OnLButtonDown(platform::UINT flags, platform::CPoint point);
    bool OnEraseBkgnd(platform::CDC& dc);
    void OnMouseMove(platform::UINT flags, platform::CPoint point);
    void OnTimer(platform::UINT id);
    void OnDestroy();
    void OnKeyDown(platform::UINT key);
    void OnKillFocus(platform::HWND) { m_items.EndChoice(); }

    // Commands and their rules
    template <bool (CommandRules::*Rule)() const>
    void enableBy(platform::CCmdUI& ui);
    template <bool (CommandRules::*Rule)() const>
    void checkBy(platform::CCmdUI& ui);
    template <platform::UINT Command>
    void OnSection();
    template <platform::UINT Command>
    void OnUpdateSection(platform::CCmdUI& ui);
    template <void (EditCommands::*Command)()>
    void OnEdit();
    template <OnlinePage Page>
    void OnOnlinePage();
    void OnHelp();
    void showPlainPage(const std::string& address);
    void OnSearch() { search(m_search); }
    /// Opens the search with a text in its word field.
    void searchFor(const std::string& text);
    void search(const SearchState& state);
    void OnFindInPage() { m_pages.FindInPage(); }
    void OnBookmarkAdd() { m_bookmarks.OnBookmarkAdd(m_panes.Mode()); }
    void OnBookmarkGoto() { m_bookmarks.OnBookmarkGoto(); }
    void GoBack() { m_navigator.GoBack(); }
    void GoForward() { m_navigator.GoForward(); }
    void OnDataAnalyser() { ShowDataAnalyser(nullptr); }
    void OnToolbar();
    void OnUpdateToolbar(platform::CCmdUI& ui);
    void AnimateShow() { m_panel.AnimateShow(GetWindowRect()); }
    /// Shows the page's video or molecule large, in a dialog under the title of what is on show.
    void ShowEnlargedView();

    // Component events
    bool OnPageChosen(std::int32_t pageNumber, std::int32_t pageId);
    bool OnItemChosen(std::int32_t itemCode);
    bool OnElementChosen(std::int16_t elementKey);
    bool OnBeforeNavigate(const std::string& url, std::int32_t flags, const std::string& frame,
                          const platform::Variant& postData, const std::string& headers, bool* cancel);
    void showDefinition(const std::string& file);

    // Links between pages
    /// Takes over the address of a link to a page, and follows it soon. False for other addresses.
    bool takePageLink(const std::string& address);
    /// Opens the page of the link, unless the data folder does not have it.
    void followPageLink();

    // Showing what navigation and bookmarks decide on
    void ShowMainMenu();
    bool EnterPageMode(std::int16_t sectionCode) override;
    void LayOutPage() override { m_panes.LayOutPage(); }
    void ShowPage(std::int32_t pageNumber, double scrolled) override {
        m_pages.ShowPage(pageNumber, scrolled);
    }
    double Scrolled() const override { return m_pages.Scrolled(); }
    void ShowItem(std::int32_t pageId, std::int32_t itemCode) override;
    void ShowPeriodicTable() override;
    /// Without a bookmark it does nothing in this mode already.
    void ShowDataAnalyser(const CBMDataAn* bookmark) override;
    void openSlot(int slot);
    void chooseByArrow(platform::UINT key);

    // The first update
    void openCache();
    void LoadElementIndex();
    /// Reads the indexes of the changed data folder and shows the page on show anew.
    void showContentAnew();
    void loadPictures();
    void saveTextSize();

    platform::CRect areaBelowBar() const;

    HostedComponents m_components;
    PagePresenter m_pages;
    ContentPanes m_panes;
    HotItems m_items;
    Navigator m_navigator;
    BookmarkCommands m_bookmarks;
    EditCommands m_edit;
    CommandRules m_rules;
    ElementIndex m_elements;
    /// Only when the program was started to follow changes.
    std::optional<ContentChanges> m_changes;
    SearchState m_search;
    GlossaryPopup m_glossary;
    CToolPanel m_panel;
    /// The link to follow; all zeros when there is none.
    formats::PageLink m_pageLink{};
    bool m_bPanelNeverShown = true;
    /// Before the first paint, navigations and the mouse are ignored.
    bool m_bInterceptionSuppressed = true;
    bool m_bStartupFailed = false;
};

}  // namespace kalyxo
