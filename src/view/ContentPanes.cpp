#include "src/view/ContentPanes.h"

#include <algorithm>

#include "platform/input/TabOrder.h"
#include "src/state/ProgramState.h"
#include "src/view/PaneLayout.h"

namespace kalyxo {

using namespace platform;

namespace {

/// Shows between the panes while the splitter is dragged away from them.
constexpr COLORREF kBetweenPanes = RGB(255, 255, 255);

/// The splitter's range; after the view has changed its size it is kept farther from the left edge.
constexpr int kMinSplitterPos = 120;
constexpr int kMinSplitterPosAfterResize = 150;
constexpr int kSplitterToRightEdge = 150;

}  // namespace

bool ContentPanes::EnterMode(ContentMode mode) {
    if (mode == m_mode) return false;
    leaveMode();
    m_mode = mode;
    return true;
}

void ContentPanes::leaveMode() {
    switch (m_mode) {
        case ContentMode::PeriodicTable:
            m_components.periodicTable.ShowWindow(SW_HIDE);
            break;
        case ContentMode::DataAnalyser:
            m_components.dataAnalyser.ShowWindow(SW_HIDE);
            break;
        case ContentMode::Page:
            m_splitter.DestroyWindow();
            m_components.select.ShowWindow(SW_HIDE);
            m_pages.LeavePage();
            break;
        case ContentMode::MainMenu:
            break;
    }
}

void ContentPanes::LayOutPage() {
    const CRect area = PaneLayout{clientSize()}.Whole();
    m_splitter.Create(TheApp().m_nSplitterPos, area.top, area.Height(), false, kMinSplitterPos,
                      area.right - kSplitterToRightEdge, m_view);
    TabAfter(m_splitter.GetSafeHwnd(), m_components.select.GetSafeHwnd());
    // The bar keeps within its limits, whatever position was saved.
    placePanes();
    m_components.select.ShowWindow(SW_SHOW);
    m_bLayoutPending = false;
}

void ContentPanes::ShowWhole(CWnd& component) {
    component.MoveWindow(PaneLayout{clientSize()}.Whole());
    component.ShowWindow(SW_SHOW);
}

void ContentPanes::FocusWhole() {
    if (m_mode == ContentMode::PeriodicTable) m_components.periodicTable.SetFocus();
    if (m_mode == ContentMode::DataAnalyser) m_components.dataAnalyser.SetFocus();
}

void ContentPanes::Resize(CSize client) {
    m_bLayoutPending = true;
    const CRect area = PaneLayout{client}.Whole();
    switch (m_mode) {
        case ContentMode::PeriodicTable:
            m_components.periodicTable.MoveWindow(area);
            break;
        case ContentMode::DataAnalyser:
            m_components.dataAnalyser.MoveWindow(area);
            break;
        case ContentMode::Page:
            m_splitter.SetLength(area.Height());
            limitSplitter(area.right - kSplitterToRightEdge);
            break;
        case ContentMode::MainMenu:
            break;
    }
}

/// A bar that a narrow window has pulled to the left goes back as far as a wider one allows.
void ContentPanes::limitSplitter(int max) {
    const int wanted = std::max(m_nPulledFrom, m_splitter.GetPos());
    m_splitter.SetRange(kMinSplitterPosAfterResize, max);
    if (wanted > m_splitter.GetPos() && m_splitter.GetPos() < max) m_splitter.MoveBar(wanted);
    m_nPulledFrom = wanted > max ? wanted : 0;
}

void ContentPanes::Paint(CDC& dc) {
    if (m_mode == ContentMode::Page) dc.FillSolidRect(PaneLayout{clientSize()}.Whole(), kBetweenPanes);
    m_components.select.Invalidate();
    if (m_bLayoutPending) placePanes();
    m_bLayoutPending = false;
}

void ContentPanes::SplitterMoved() {
    m_nPulledFrom = 0;
    placePanes();
}

void ContentPanes::placePanes() {
    if (m_mode != ContentMode::Page) return;
    const int position = m_splitter.GetPos();
    if (position >= kMinSplitterPos) TheApp().m_nSplitterPos = position;
    const PaneLayout panes{clientSize()};
    m_components.select.MoveWindow(panes.BrowseSelection(position));
    m_components.browser.MoveWindow(panes.Browser(position));
}

CSize ContentPanes::clientSize() const {
    const CRect client = m_view.GetClientRect();
    return {client.Width(), client.Height()};
}

}  // namespace kalyxo
