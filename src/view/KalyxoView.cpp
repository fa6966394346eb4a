#include "src/view/KalyxoView.h"

#include <utility>

#include "controls/contract/HostMessages.h"
#include "formats/PageNumber.h"
#include "formats/SectionTable.h"
#include "platform/base/Resources.h"
#include "platform/browser/BrowserPolicy.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/FrameWnd.h"
#include "platform/machine/Machine.h"
#include "platform/windows/Cursor.h"
#include "platform/windows/WindowDC.h"
#include "src/bookmarks/AnalyserCapture.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"
#include "src/state/Settings.h"
#include "src/view/ComponentStart.h"
#include "src/view/PaneLayout.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr UINT kTimerId = 1;
constexpr int kTimerMs = 250;
constexpr COLORREF kBlack = RGB(0, 0, 0);

/// Further values of the second parameter of WM_COMMAND, beside those in controls/contract/HostMessages.h: a
/// request to load the page again, the splitter's, and one that the view posts to itself.
constexpr LPARAM kRefreshBrowser = 9822;
constexpr LPARAM kSplitterMoved = IDC_SPLITTER;
constexpr LPARAM kFollowPageLink = 9823;

}  // namespace

const CRuntimeClass CKalyxoView::runtimeClass = MakeRuntimeClass<CKalyxoView>("CKalyxoView");

CKalyxoView::CKalyxoView()
    : m_pages(machine().files(), m_components.browser),
      m_panes(*this, m_components, m_pages),
      m_items(*this, m_panes),
      m_navigator(*this),
      m_bookmarks(m_components, m_navigator, *this),
      m_edit(m_components, m_panes, m_navigator),
      m_rules(m_panes, m_navigator, m_pages.Contents(), m_components.dataAnalyser) {}

CKalyxoView::~CKalyxoView() = default;

ViewInspection CKalyxoView::Inspection() const {
    return {m_panes.Mode(),
            m_navigator,
            m_items,
            m_pages,
            m_bookmarks.Bookmarks(),
            m_glossary,
            m_panes.Splitter(),
            m_panel.GetSafeHwnd(),
            m_bStartupFailed};
}

void CKalyxoView::OnInitialUpdate() {
    CView::OnInitialUpdate();
    SetAccessibleName(LoadString(IDS_SECTIONS));
    SetTimer(kTimerId, kTimerMs);
    PagePresenter::ReadyBrowser();
    if (!ComponentStart(*this, m_components).Run()) {
        m_bStartupFailed = true;
        return;
    }
    m_pages.SetTextSize(TheApp().m_nTextSize);
    m_components.browser.Navigate(TheApp().m_strDataFolder + "a.htm");
    m_panel.Create(this);
    openCache();
    BrowserPolicy::instance().setFollower([this](int browser, const std::string& address) {
        return browser == IDC_WEB && takePageLink(address);
    });
    m_bookmarks.LoadBookmarks();
    LoadElementIndex();
    loadPictures();
    m_glossary.Create(*this);
    ComponentStart::CheckComponentVersions();
    const ProgramState& app = TheApp();
    if (app.m_bFollowContent) m_changes.emplace(machine().files(), app.m_strDataFolder);
}

void CKalyxoView::showContentAnew() {
    m_components.ReadSelectionAnew(*this, TheApp().m_strDataFolder);
    LoadElementIndex();
    if (m_panes.Mode() == ContentMode::Page) m_navigator.ShowAgain();
}

void CKalyxoView::openCache() {
    const ProgramState& app = TheApp();
    m_pages.OpenCache(
        LocateCache(app.m_strProgramFolder, machine().tempFolder(), app.m_bOutsideInstallFolder));
}

void CKalyxoView::LoadElementIndex() {
    if (!m_elements.Load(machine().files(), TheApp().m_strDataFolder)) {
        AfxMessageBox(LoadString(IDS_NO_ELEMENT_INDEX));
    }
}

void CKalyxoView::loadPictures() {
    m_items.LoadPictures(machine().files(), TheApp().m_strDataFolder + "images\\", [](PictureResult result) {
        AfxMessageBox(
            LoadString(result == PictureResult::outOfMemory ? IDS_OUT_OF_MEMORY : IDS_PICTURE_DAMAGED));
    });
}

void CKalyxoView::OnDestroy() {
    if (m_bStartupFailed) return;
    BrowserPolicy::instance().setFollower({});
    saveTextSize();
    m_components.browser.DestroyWindow();
    m_bookmarks.SaveBookmarks();
    KillTimer(kTimerId);
    m_pages.CleanCache();
}

void CKalyxoView::saveTextSize() {
    const int size = m_pages.TextSize();
    if (size == TheApp().m_nTextSize) return;
    if (WriteTextSize(machine().registry(), size)) machine().flushRegistry();
}

bool CKalyxoView::takePageLink(const std::string& address) {
    const auto link = formats::decodePageLink(address);
    if (!link) return false;
    m_pageLink = *link;
    // Posted, since no page can be loaded while the browser waits for the answer to its question.
    PostMessage(WM_COMMAND, 0, kFollowPageLink);
    return true;
}

void CKalyxoView::followPageLink() {
    const formats::PageLink link = std::exchange(m_pageLink, {});
    const auto path = formats::pagePath(link.itemCode > 0 ? link.itemCode : link.pageId);
    const bool exists = path && machine().files().exists(TheApp().m_strDataFolder + *path);
    if (!exists || !formats::sectionByCode(link.sectionCode)) return;
    m_navigator.OpenTopic({link.sectionCode, link.pageId, link.itemCode});
}

void CKalyxoView::OnDraw(CDC& dc) {
    if (m_bStartupFailed) {
        GetParentFrame()->PostMessage(WM_CLOSE);
        return;
    }
    if (m_panes.Mode() == ContentMode::MainMenu) {
        m_items.Draw(dc);
        OnTimer(kTimerId);
    } else {
        m_items.DrawBar(dc);
        m_panes.Paint(dc);
    }
    m_bInterceptionSuppressed = false;
}

bool CKalyxoView::OnEraseBkgnd(CDC& dc) {
    if (m_panes.Mode() == ContentMode::MainMenu) dc.FillSolidRect(areaBelowBar(), kBlack);
    return true;
}

CRect CKalyxoView::areaBelowBar() const {
    const CRect client = GetClientRect();
    return PaneLayout{{client.Width(), client.Height()}}.Whole();
}

void CKalyxoView::OnSize(UINT type, int width, int height) {
    if (type == SIZE_MINIMIZED || m_bStartupFailed) return;
    m_items.Resize(width);
    m_panes.Resize({width, height});
}

bool CKalyxoView::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (lParam) {
        case controls::showEnlargedView:
            ShowEnlargedView();
            return true;
        case controls::openSection:
            if (formats::sectionByCode(static_cast<std::int16_t>(wParam))) {
                m_navigator.OpenSection(static_cast<std::int16_t>(wParam), 0);
            }
            return true;
        case controls::searchWord:
            searchFor(*reinterpret_cast<const std::string*>(wParam));
            return true;
        case kFollowPageLink:
            followPageLink();
            return true;
        case kRefreshBrowser:
            m_components.browser.Refresh2();
            return true;
        case kSplitterMoved:
            m_panes.SplitterMoved();
            return true;
        default:
            return CView::OnCommand(wParam, lParam);
    }
}

void CKalyxoView::OnMouseMove(UINT, CPoint point) {
    if (!m_bInterceptionSuppressed) m_items.FollowPointer(point);
}

void CKalyxoView::OnTimer(UINT id) {
    if (id != kTimerId) return;
    OnMouseMove(0, ScreenToClient(GetCursorPos()));
    if (m_changes && m_changes->HaveCome()) showContentAnew();
}

void CKalyxoView::OnLButtonDown(UINT, CPoint point) {
    const int slot = m_items.SlotClicked(point);
    if (slot < 0) return;
    CCursor::Arrow().Set();
    openSlot(slot);
    m_panes.FocusWhole();
}

void CKalyxoView::OnKeyDown(UINT key) {
    switch (key) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
            chooseByArrow(key);
            break;
        case VK_RETURN:
        case VK_SPACE:
            if (const int slot = m_items.TakeChosenSlot(); slot >= 0) openSlot(slot);
            break;
        case VK_TAB:
            if (m_bInterceptionSuppressed || !m_items.ChooseByTab()) DefWindowProc(WM_KEYDOWN, key, 0);
            break;
        default:
            DefWindowProc(WM_KEYDOWN, key, 0);
    }
}

void CKalyxoView::chooseByArrow(UINT key) {
    if (!m_bInterceptionSuppressed) m_items.ChooseByArrow(key);
}

void CKalyxoView::openSlot(int slot) {
    switch (slot) {
        case kPeriodicTableSlot:
            ShowPeriodicTable();
            break;
        case kDataAnalyserSlot:
            OnDataAnalyser();
            break;
        case kMainMenuSlot:
            ShowMainMenu();
            break;
        case kToolbarSlot:
            GetParentFrame()->RunCommand(ID_TOOLBAR);
            break;
        default:
            m_navigator.OpenStartPage(SectionCommands().at(static_cast<std::size_t>(slot)).code);
    }
}

void CKalyxoView::ShowMainMenu() {
    if (m_panes.Mode() == ContentMode::MainMenu) return;
    m_items.SelectSlot(kMainMenuSlot);
    m_panes.EnterMode(ContentMode::MainMenu);
    CClientDC dc(*this);
    dc.FillSolidRect(areaBelowBar(), kBlack);
    m_items.PaintMainMenu(dc);
}

bool CKalyxoView::EnterPageMode(std::int16_t sectionCode) {
    m_items.SelectSlot(SlotOfSection(sectionCode));
    const bool needLayout = m_panes.EnterMode(ContentMode::Page);
    m_items.ClearHotItem();
    m_components.select.SetSection(sectionCode);
    return needLayout;
}

void CKalyxoView::ShowItem(std::int32_t pageId, std::int32_t itemCode) {
    m_components.select.ShowItem(pageId, itemCode, false);
}

void CKalyxoView::ShowPeriodicTable() {
    m_items.SelectSlot(kPeriodicTableSlot);
    m_panes.EnterMode(ContentMode::PeriodicTable);
    m_items.ClearHotItem();
    m_navigator.RecordHistory({kPeriodicTableCode, 0, 0});
    m_components.periodicTable.Redraw();
    m_panes.ShowWhole(m_components.periodicTable);
}

void CKalyxoView::ShowDataAnalyser(const CBMDataAn* bookmark) {
    if (m_panes.Mode() == ContentMode::DataAnalyser && bookmark == nullptr) return;
    m_items.SelectSlot(kDataAnalyserSlot);
    m_panes.EnterMode(ContentMode::DataAnalyser);
    m_items.ClearHotItem();
    m_navigator.RecordHistory({kDataAnalyserCode, 0, 0});
    m_panes.ShowWhole(m_components.dataAnalyser);
    if (bookmark == nullptr) return;
    m_components.dataAnalyser.SendMessage(WM_PAINT);
    RestoreAnalyser(m_components.dataAnalyser, *bookmark);
}

}  // namespace kalyxo
