#pragma once

#include <optional>

#include "platform/framework/View.h"
#include "src/bookmarks/BookmarkList.h"
#include "src/components/ElementIndex.h"
#include "src/components/HostedComponents.h"
#include "src/display/SplitterBar.h"
#include "src/display/ToolPanel.h"
#include "src/pages/GlossaryPopup.h"
#include "src/pages/History.h"
#include "src/pages/OnlinePages.h"
#include "src/pages/PageCache.h"
#include "src/pages/PagePreparer.h"
#include "src/search/SearchState.h"
#include "src/view/ContentMode.h"
#include "src/view/KeyboardChoice.h"
#include "src/view/MainMenuScreen.h"
#include "src/view/PictureCapture.h"
#include "src/view/SectionBar.h"

namespace kalyxo {

/// The one content window: the section bar above, and below it the main menu, a component, or a page beside
/// its topics. It turns messages, commands and component events into calls of the objects it owns.
class CKalyxoView : public platform::CView {
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
    std::vector<platform::DrawnPart> DrawnParts() const override;
    void PushDrawnPart(int index) override { openSlot(OpenableItems::SlotFor(index)); }
    /// Shows where the arrow keys go on from.
    void OnTabbedTo() override { chooseByArrow(platform::VK_RIGHT); }

    /// Shows a section in page mode and, unless `pageNumber` is 0, opens that page.
    void OpenSection(std::int16_t sectionCode, std::int32_t pageNumber);
    /// Prepares a page, shows it and records the current address in the history.
    void OpenPage(std::int32_t pageNumber);
    void GoBack();
    void GoForward();
    void ShowMainMenu();
    void ShowPeriodicTable();
    /// Given a bookmark, brings its state back; otherwise does nothing in this mode already.
    void ShowDataAnalyser(const CBMDataAn* bookmark = nullptr);
    /// Shows the page's video or molecule large, in a dialog under the title of what is on show.
    void ShowEnlargedView();

    ContentMode Mode() const { return m_mode; }
    /// What page mode shows; keeps its last value in the other modes.
    const PageAddress& Address() const { return m_address; }
    const History& Places() const { return m_history; }
    const SectionBar& Bar() const { return m_bar; }
    const MainMenuScreen& Menu() const { return m_menu; }
    const PageContents& Contents() const { return m_contents; }
    const PageCache& Cache() const { return m_cache; }
    BookmarkList& Bookmarks() { return m_bookmarks; }
    const BookmarkList& Bookmarks() const { return m_bookmarks; }
    bool StartupFailed() const { return m_bStartupFailed; }
    HostedComponents& Components() { return m_components; }
    const GlossaryPopup& Glossary() const { return m_glossary; }
    CSplitterBar& Splitter() { return m_splitter; }
    const CToolPanel& Panel() const { return m_panel; }

  private:
    /// In the second parameter of WM_COMMAND, from a component or the view itself: opens the enlarged view.
    static constexpr platform::LPARAM kShowEnlargedView = 9821;

    // Window messages
    void OnSize(platform::UINT type, int width, int height);
    bool OnSetCursor();
    void OnLButtonDown(platform::UINT flags, platform::CPoint point);
    bool OnEraseBkgnd(platform::CDC& dc);
    void OnMouseMove(platform::UINT flags, platform::CPoint point);
    void OnTimer(platform::UINT id);
    void OnDestroy();

    // Commands and their rules
    template <std::size_t Slot>
    void OnSection();
    template <std::size_t Slot>
    void OnUpdateSection(platform::CCmdUI& ui);
    template <OnlinePage Page>
    void OnOnlinePage();
    void OnHelp();
    void showPlainPage(const std::string& address);
    void OnPrint();
    void OnUpdatePrint(platform::CCmdUI& ui);
    void OnSearch();
    void OnCut();
    void OnCopy();
    void execInDocument(std::int32_t command);
    void OnPaste();
    template <PluginKind Kind>
    void OnCopyPicture();
    template <PluginKind Kind>
    void OnPrintPicture();
    template <PluginKind Kind>
    void OnUpdatePicture(platform::CCmdUI& ui);
    void OnCopyAllData();
    void OnCopySelected();
    void OnCopyGraph();
    void OnUpdateCopy(platform::CCmdUI& ui);
    void OnUpdateCutAndPaste(platform::CCmdUI& ui);
    void OnUpdateCopyAllData(platform::CCmdUI& ui);
    void OnUpdateCopySelected(platform::CCmdUI& ui);
    void OnUpdateCopyGraph(platform::CCmdUI& ui);
    void OnUpdateBack(platform::CCmdUI& ui);
    void OnUpdateForward(platform::CCmdUI& ui);
    void OnUpdatePeriodicTable(platform::CCmdUI& ui);
    void OnDataAnalyser() { ShowDataAnalyser(); }
    void OnUpdateBookmarkAdd(platform::CCmdUI& ui);
    void OnUpdateDataAnalyser(platform::CCmdUI& ui);
    void OnToolbar();
    void OnUpdateToolbar(platform::CCmdUI& ui);
    void AnimateShow();

    // Component events
    bool OnPageChosen(std::int32_t pageNumber, std::int32_t pageId);
    bool OnItemChosen(std::int32_t itemCode);
    bool OnElementChosen(std::int16_t elementKey);
    bool OnBeforeNavigate(const std::string& url, std::int32_t flags, const std::string& frame,
                          const platform::Variant& postData, const std::string& headers, bool* cancel);

    // Start-up
    void readyBrowser();
    CacheLocation cacheLocation() const;
    bool componentsAreUpToDate();
    bool createComponents();
    void CheckComponentVersions();
    void openCache();
    void LoadBookmarks();
    void LoadElementIndex();
    void loadPictures();

    // Bookmarks
    void SaveBookmarks();
    void OnBookmarkAdd();
    void OnBookmarkGoto();
    std::unique_ptr<CBookmark> MakeBookmark(const std::string& name);
    std::unique_ptr<CBookmark> MakeBrowseBookmark(const std::string& name) const;
    std::unique_ptr<CBookmark> MakePeriodicBookmark(const std::string& name);
    std::unique_ptr<CBookmark> MakeDataAnBookmark(const std::string& name);
    std::string proposedName();
    std::string pageTitle();
    void openBookmark(const CBookmark& bookmark);
    void openPageBookmark(const CBMBrowse& bookmark);

    // Navigation
    void ReplayHistory();
    void openPlace(const PageAddress& place);
    void restorePage(const PageAddress& place);
    void RecordHistory(const PageAddress& place) { m_history.Record(place); }
    PrepareResult preparePage(const std::string& source, const std::string& target);
    void ShowPreparedPage(const std::string& target);
    void openSectionOfSlot(int slot);
    void showDefinition(const std::string& file);

    // Modes and panes
    void selectSlot(int slot);
    void hideComponentOfMode();
    void leaveMode();
    void enterPageMode(std::int16_t sectionCode);
    void layOutPage();
    void placeWhole(platform::CWnd& component);
    void splitterMoved();
    platform::CSize clientSize() const;

    // Hovering
    bool HitTestBar(platform::CPoint point);
    bool isUnder(platform::CPoint point) const;
    void PaintMainMenu(platform::CDC& dc);
    void hoverMainMenu(int item);
    void openSlot(int slot);
    bool focusIsInSelectEdit() const;

    // The keyboard's choice among the slots and areas
    void OnKeyDown(platform::UINT key);
    void OnKillFocus(platform::HWND other);
    OpenableItems openableItems() const;
    int shownItem() const;
    bool keyboardChoiceStands(platform::CPoint point) const;
    void chooseByArrow(platform::UINT key);
    void openChosen();

    ContentMode m_mode = ContentMode::MainMenu;
    PageAddress m_address;
    History m_history;
    PageContents m_contents;
    SectionBar m_bar;
    MainMenuScreen m_menu;
    KeyboardChoice m_keyboard;
    PageCache m_cache;
    std::optional<PagePreparer> m_preparer;
    BookmarkList m_bookmarks;
    ElementIndex m_elements;
    SearchState m_search;
    HostedComponents m_components;
    CSplitterBar m_splitter;
    GlossaryPopup m_glossary;
    CToolPanel m_panel;
    bool m_bPanelNeverShown = true;
    platform::CCursor m_handCursor;
    bool m_bLayoutPending = false;
    /// Until the first paint neither navigations nor the mouse are looked at.
    bool m_bInterceptionSuppressed = true;
    bool m_bStartupFailed = false;
};

}  // namespace kalyxo
