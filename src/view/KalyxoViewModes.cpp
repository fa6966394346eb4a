#include "platform/input/TabPlace.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/WindowDC.h"
#include "src/bookmarks/AnalyserCapture.h"
#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"
#include "src/view/PaneLayout.h"

/// The view's modes: entering and leaving them, and the panes they show.
namespace kalyxo {

using namespace platform;

namespace {

/// Where the browser waits while no page is shown, to the left of the client area.
constexpr CRect kBrowserParked = CRect::at(-800, 0, 400, 200);

}  // namespace

void CKalyxoView::selectSlot(int slot) {
    CClientDC dc(*this);
    m_bar.Select(slot, dc);
}

void CKalyxoView::hideComponentOfMode() {
    if (m_mode == ContentMode::PeriodicTable) m_components.periodicTable.ShowWindow(SW_HIDE);
    if (m_mode == ContentMode::DataAnalyser) m_components.dataAnalyser.ShowWindow(SW_HIDE);
}

void CKalyxoView::leaveMode() {
    hideComponentOfMode();
    if (m_mode != ContentMode::Page) return;
    m_splitter.DestroyWindow();
    m_components.select.ShowWindow(SW_HIDE);
    m_components.browser.MoveWindow(kBrowserParked);
    m_contents = {};
}

void CKalyxoView::enterPageMode(std::int16_t sectionCode) {
    selectSlot(SlotOfSection(sectionCode));
    hideComponentOfMode();
    m_mode = ContentMode::Page;
    m_menu.ClearHotItem();
    m_components.select.SetSection(sectionCode);
    m_address.sectionCode = sectionCode;
}

void CKalyxoView::layOutPage() {
    const CSize client = clientSize();
    m_splitter.Create(TheApp().m_nSplitterPos, kBarHeight, client.cy - kBarHeight, false,
                      kSmallestSplitterPos, client.cx - 150, *this);
    TabAfter(m_splitter.GetSafeHwnd(), m_components.select.GetSafeHwnd());
    // The bar keeps within its limits, whatever position was saved.
    splitterMoved();
    m_components.select.ShowWindow(SW_SHOW);
    m_bLayoutPending = false;
}

void CKalyxoView::placeWhole(CWnd& component) {
    component.MoveWindow(PaneLayout{clientSize()}.whole());
    component.ShowWindow(SW_SHOW);
}

void CKalyxoView::ShowMainMenu() {
    if (m_mode == ContentMode::MainMenu) return;
    selectSlot(kMainMenuSlot);
    leaveMode();
    m_mode = ContentMode::MainMenu;
    CClientDC dc(*this);
    dc.FillSolidRect(PaneLayout{clientSize()}.whole(), RGB(0, 0, 0));
    PaintMainMenu(dc);
}

void CKalyxoView::ShowPeriodicTable() {
    selectSlot(kPeriodicTableSlot);
    if (m_mode != ContentMode::PeriodicTable) leaveMode();
    m_mode = ContentMode::PeriodicTable;
    m_menu.ClearHotItem();
    RecordHistory({kPeriodicTableCode, 0, 0});
    m_components.periodicTable.Redraw();
    placeWhole(m_components.periodicTable);
}

void CKalyxoView::ShowDataAnalyser(const CBMDataAn* bookmark) {
    if (m_mode == ContentMode::DataAnalyser && !bookmark) return;
    selectSlot(kDataAnalyserSlot);
    if (m_mode != ContentMode::DataAnalyser) leaveMode();
    m_mode = ContentMode::DataAnalyser;
    m_menu.ClearHotItem();
    RecordHistory({kDataAnalyserCode, 0, 0});
    placeWhole(m_components.dataAnalyser);
    if (!bookmark) return;
    m_components.dataAnalyser.SendMessage(WM_PAINT);
    RestoreAnalyser(m_components.dataAnalyser, *bookmark);
}

}  // namespace kalyxo
