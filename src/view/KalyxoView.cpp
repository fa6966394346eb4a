#include "src/view/KalyxoView.h"

#include "platform/framework/FrameWnd.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/WindowDC.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"
#include "src/view/PaneLayout.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr UINT kTimerId = 1;
constexpr COLORREF kBlack = RGB(0, 0, 0);
/// Shows between the panes while the splitter is dragged away from them.
constexpr COLORREF kBetweenPanes = RGB(255, 255, 255);

/// Identifiers that components and the splitter put into the second parameter of WM_COMMAND.
constexpr LPARAM kRefreshBrowser = 9822;
constexpr LPARAM kSplitterMoved = IDC_SPLITTER;

}  // namespace

const CRuntimeClass CKalyxoView::runtimeClass = MakeRuntimeClass<CKalyxoView>("CKalyxoView");

CKalyxoView::CKalyxoView() : m_cache(machine().files()) {}

CKalyxoView::~CKalyxoView() = default;

void CKalyxoView::OnDraw(CDC& dc) {
    if (m_bStartupFailed) {
        GetParentFrame()->PostMessage(WM_CLOSE);
        return;
    }
    if (m_mode == ContentMode::MainMenu) {
        PaintMainMenu(dc);
        // The pointer may still be on it, and would not make it hot a second time.
        if (m_menu.HotItem() >= 0) m_menu.Highlight(dc, m_menu.HotItem());
        m_bar.SetSelected(kMainMenuSlot);
        OnTimer(kTimerId);
    } else {
        m_bar.DrawBar(dc);
        if (m_mode == ContentMode::Page) dc.FillSolidRect(PaneLayout{clientSize()}.whole(), kBetweenPanes);
        m_components.select.Invalidate();
        if (m_bLayoutPending) {
            splitterMoved();
            m_bLayoutPending = false;
        }
    }
    m_bInterceptionSuppressed = false;
}

void CKalyxoView::PaintMainMenu(CDC& dc) {
    if (m_bStartupFailed) return;
    m_bar.DrawBar(dc);
    m_menu.Paint(dc, clientSize());
}

bool CKalyxoView::OnEraseBkgnd(CDC& dc) {
    if (m_mode == ContentMode::MainMenu) dc.FillSolidRect(PaneLayout{clientSize()}.whole(), kBlack);
    return true;
}

void CKalyxoView::OnSize(UINT type, int width, int height) {
    if (type == SIZE_MINIMIZED || m_bStartupFailed) return;
    m_menu.Displace();
    m_bLayoutPending = true;
    m_bar.SetWidth(width);
    const PaneLayout panes{{width, height}};
    switch (m_mode) {
        case ContentMode::PeriodicTable:
            m_components.periodicTable.MoveWindow(panes.whole());
            break;
        case ContentMode::DataAnalyser:
            m_components.dataAnalyser.MoveWindow(panes.whole());
            break;
        case ContentMode::Page:
            m_splitter.SetLength(height - kBarHeight);
            m_splitter.SetRange(150, width - 150);
            break;
        case ContentMode::MainMenu:
            break;
    }
}

bool CKalyxoView::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (lParam) {
        case kShowEnlargedView:
            ShowEnlargedView();
            return true;
        case kRefreshBrowser:
            m_components.browser.Refresh2();
            return true;
        case kSplitterMoved:
            splitterMoved();
            return true;
        default:
            return CView::OnCommand(wParam, lParam);
    }
}

void CKalyxoView::splitterMoved() {
    if (m_mode != ContentMode::Page) return;
    const int position = m_splitter.GetPos();
    if (position >= kSmallestSplitterPos) TheApp().m_nSplitterPos = position;
    const PaneLayout panes{clientSize()};
    m_components.select.MoveWindow(panes.browseSelection(position));
    m_components.browser.MoveWindow(panes.browser(position));
}

CSize CKalyxoView::clientSize() const {
    const CRect client = GetClientRect();
    return {client.Width(), client.Height()};
}

bool CKalyxoView::isUnder(CPoint point) const { return WindowFromPoint(ClientToScreen(point)) == this; }

bool CKalyxoView::HitTestBar(CPoint point) {
    const int slot = isUnder(point) ? m_bar.Layout().SlotAt(point) : -1;
    CClientDC dc(*this);
    m_bar.Hover(slot, dc);
    return slot < 0;
}

void CKalyxoView::OnMouseMove(UINT, CPoint point) {
    if (m_bInterceptionSuppressed || keyboardChoiceStands(point)) return;
    m_keyboard.End();
    const bool offBar = HitTestBar(point);
    if (m_mode == ContentMode::MainMenu) hoverMainMenu(offBar && isUnder(point) ? m_menu.ItemAt(point) : -1);
}

void CKalyxoView::hoverMainMenu(int item) {
    const int former = m_menu.HotItem();
    if (item == former) return;
    CClientDC dc(*this);
    if (former >= 0) {
        m_menu.ClearHotItem();
        PaintMainMenu(dc);
    }
    if (item >= 0) m_menu.Highlight(dc, item);
}

void CKalyxoView::OnTimer(UINT id) {
    if (id == kTimerId) OnMouseMove(0, ScreenToClient(GetCursorPos()));
}

bool CKalyxoView::OnSetCursor() {
    if (m_keyboard.Begun()) return false;
    const bool overSlot = m_bar.Hovered() >= 0 && m_bar.Hovered() != m_bar.Selected();
    if (!overSlot && m_menu.HotItem() < 0) return false;
    m_handCursor.Set();
    return true;
}

void CKalyxoView::OnLButtonDown(UINT flags, CPoint point) {
    if (m_keyboard.Begun()) {
        m_keyboard.End();
        OnMouseMove(flags, point);
    }
    const int item = m_bar.Hovered() >= 0 ? m_bar.Hovered() : m_menu.HotItem();
    if (item < 0) return;
    CCursor::arrow().Set();
    openSlot(item);
}

void CKalyxoView::openSlot(int slot) {
    switch (slot) {
        case kPeriodicTableSlot:
            ShowPeriodicTable();
            break;
        case kDataAnalyserSlot:
            ShowDataAnalyser();
            break;
        case kMainMenuSlot:
            ShowMainMenu();
            break;
        case kToolbarSlot:
            GetParentFrame()->RunCommand(ID_TOOLBAR);
            break;
        default:
            openSectionOfSlot(slot);
    }
}

void CKalyxoView::OnDestroy() {
    if (m_bStartupFailed) return;
    m_components.browser.DestroyWindow();
    SaveBookmarks();
    m_bookmarks.Clear();
    KillTimer(kTimerId);
    m_cache.CleanCache(true);
}

bool CKalyxoView::focusIsInSelectEdit() const {
    return GetFocus() != 0 && GetFocus() == TheApp().m_hwndSelectEdit;
}

}  // namespace kalyxo
