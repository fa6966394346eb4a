#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "src/pages/EnlargedViewDlg.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"

/// The view's maps, and the commands with their rules.
namespace kalyxo {

using namespace platform;

template <std::size_t Slot>
void CKalyxoView::OnSection() {
    openSectionOfSlot(Slot);
}

template <std::size_t Slot>
void CKalyxoView::OnUpdateSection(CCmdUI& ui) {
    ui.SetCheck(m_mode == ContentMode::Page && m_address.sectionCode == SectionCommands()[Slot].code);
}

template <PluginKind Kind>
void CKalyxoView::OnCopyPicture() {
    PictureCapture(m_components.browser.GetSafeHwnd()).Copy(Kind);
}

template <PluginKind Kind>
void CKalyxoView::OnPrintPicture() {
    const std::string title = m_components.select.GetItemTitle(m_address.itemCode);
    PictureCapture(m_components.browser.GetSafeHwnd()).Print(Kind, title);
}

template <PluginKind Kind>
void CKalyxoView::OnUpdatePicture(CCmdUI& ui) {
    ui.Enable(Kind == PluginKind::molecule ? m_contents.molecule : m_contents.video);
}

const MessageMap* CKalyxoView::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {
        OnMessage<WM_SIZE, &CKalyxoView::OnSize>(),
        OnMessage<WM_SETCURSOR, &CKalyxoView::OnSetCursor>(),
        OnMessage<WM_LBUTTONDOWN, &CKalyxoView::OnLButtonDown>(),
        OnMessage<WM_ERASEBKGND, &CKalyxoView::OnEraseBkgnd>(),
        OnMessage<WM_MOUSEMOVE, &CKalyxoView::OnMouseMove>(),
        OnMessage<WM_TIMER, &CKalyxoView::OnTimer>(),
        OnMessage<WM_DESTROY, &CKalyxoView::OnDestroy>(),
        OnMessage<WM_KEYDOWN, &CKalyxoView::OnKeyDown>(),
        OnMessage<WM_KILLFOCUS, &CKalyxoView::OnKillFocus>(),
        OnCommandId<&CKalyxoView::OnSection<0>>(ID_SECTION_REACT),
        OnUpdateId<&CKalyxoView::OnUpdateSection<0>>(ID_SECTION_REACT),
        OnCommandId<&CKalyxoView::OnSection<1>>(ID_SECTION_STRUCT),
        OnUpdateId<&CKalyxoView::OnUpdateSection<1>>(ID_SECTION_STRUCT),
        OnCommandId<&CKalyxoView::OnSection<2>>(ID_SECTION_ELEMCOMP),
        OnUpdateId<&CKalyxoView::OnUpdateSection<2>>(ID_SECTION_ELEMCOMP),
        OnCommandId<&CKalyxoView::OnSection<3>>(ID_SECTION_USES),
        OnUpdateId<&CKalyxoView::OnUpdateSection<3>>(ID_SECTION_USES),
        OnCommandId<&CKalyxoView::OnSection<4>>(ID_SECTION_SOURCE),
        OnUpdateId<&CKalyxoView::OnUpdateSection<4>>(ID_SECTION_SOURCE),
        OnCommandId<&CKalyxoView::OnSection<5>>(ID_SECTION_HISTORY),
        OnUpdateId<&CKalyxoView::OnUpdateSection<5>>(ID_SECTION_HISTORY),
        OnCommandId<&CKalyxoView::OnSection<6>>(ID_SECTION_CONCEPT),
        OnUpdateId<&CKalyxoView::OnUpdateSection<6>>(ID_SECTION_CONCEPT),
        OnCommandId<&CKalyxoView::ShowPeriodicTable>(ID_PERIODIC_TABLE),
        OnUpdateId<&CKalyxoView::OnUpdatePeriodicTable>(ID_PERIODIC_TABLE),
        OnCommandId<&CKalyxoView::OnDataAnalyser>(ID_DATA_ANALYSER),
        OnUpdateId<&CKalyxoView::OnUpdateDataAnalyser>(ID_DATA_ANALYSER),
        OnCommandId<&CKalyxoView::OnBookmarkAdd>(ID_BOOKMARK_ADD),
        OnUpdateId<&CKalyxoView::OnUpdateBookmarkAdd>(ID_BOOKMARK_ADD),
        OnCommandId<&CKalyxoView::OnBookmarkGoto>(ID_BOOKMARK_GOTO),
        OnCommandId<&CKalyxoView::OnToolbar>(ID_TOOLBAR),
        OnUpdateId<&CKalyxoView::OnUpdateToolbar>(ID_TOOLBAR),
        OnCommandId<&CKalyxoView::GoBack>(ID_BACK),
        OnUpdateId<&CKalyxoView::OnUpdateBack>(ID_BACK),
        OnCommandId<&CKalyxoView::GoForward>(ID_FORWARD),
        OnUpdateId<&CKalyxoView::OnUpdateForward>(ID_FORWARD),
        OnCommandId<&CKalyxoView::ShowMainMenu>(ID_FILE_NEW),
        OnCommandId<&CKalyxoView::OnBookmarkGoto>(ID_FILE_OPEN),
        OnCommandId<&CKalyxoView::OnOnlinePage<OnlinePage::product>>(ID_ONLINE_PRODUCT),
        OnCommandId<&CKalyxoView::OnOnlinePage<OnlinePage::support>>(ID_ONLINE_SUPPORT),
        OnCommandId<&CKalyxoView::OnOnlinePage<OnlinePage::products>>(ID_ONLINE_PRODUCTS),
        OnCommandId<&CKalyxoView::OnHelp>(ID_HELP_CONTENTS),
        OnCommandId<&CKalyxoView::OnPrint>(ID_FILE_PRINT),
        OnUpdateId<&CKalyxoView::OnUpdatePrint>(ID_FILE_PRINT),
        OnCommandId<&CKalyxoView::OnSearch>(ID_SEARCH),
        OnCommandId<&CKalyxoView::OnCut>(ID_EDIT_CUT),
        OnUpdateId<&CKalyxoView::OnUpdateCutAndPaste>(ID_EDIT_CUT),
        OnCommandId<&CKalyxoView::OnCopy>(ID_EDIT_COPY),
        OnUpdateId<&CKalyxoView::OnUpdateCopy>(ID_EDIT_COPY),
        OnCommandId<&CKalyxoView::OnPaste>(ID_EDIT_PASTE),
        OnUpdateId<&CKalyxoView::OnUpdateCutAndPaste>(ID_EDIT_PASTE),
        OnCommandId<&CKalyxoView::OnCopyPicture<PluginKind::molecule>>(ID_COPY_MOLECULE),
        OnUpdateId<&CKalyxoView::OnUpdatePicture<PluginKind::molecule>>(ID_COPY_MOLECULE),
        OnCommandId<&CKalyxoView::OnCopyPicture<PluginKind::video>>(ID_COPY_VIDEO),
        OnUpdateId<&CKalyxoView::OnUpdatePicture<PluginKind::video>>(ID_COPY_VIDEO),
        OnCommandId<&CKalyxoView::OnPrintPicture<PluginKind::molecule>>(ID_PRINT_MOLECULE),
        OnUpdateId<&CKalyxoView::OnUpdatePicture<PluginKind::molecule>>(ID_PRINT_MOLECULE),
        OnCommandId<&CKalyxoView::OnPrintPicture<PluginKind::video>>(ID_PRINT_VIDEO),
        OnUpdateId<&CKalyxoView::OnUpdatePicture<PluginKind::video>>(ID_PRINT_VIDEO),
        OnCommandId<&CKalyxoView::OnCopyAllData>(ID_COPY_ALL_DATA),
        OnUpdateId<&CKalyxoView::OnUpdateCopyAllData>(ID_COPY_ALL_DATA),
        OnCommandId<&CKalyxoView::OnCopySelected>(ID_COPY_SELECTED),
        OnUpdateId<&CKalyxoView::OnUpdateCopySelected>(ID_COPY_SELECTED),
        OnCommandId<&CKalyxoView::OnCopyGraph>(ID_COPY_GRAPH),
        OnUpdateId<&CKalyxoView::OnUpdateCopyGraph>(ID_COPY_GRAPH),
    };
    static const MessageMap map{CView::GetMessageMap(), entries};
    return &map;
}

const EventSinkMap* CKalyxoView::GetEventSinkMap() const {
    static constexpr EventSinkEntry entries[] = {
        OnControlEvent<&CKalyxoView::OnBeforeNavigate>(IDC_WEB, 100),
        OnControlEvent<&CKalyxoView::OnPageChosen>(IDC_SELECT, 1),
        OnControlEvent<&CKalyxoView::OnItemChosen>(IDC_SELECT, 2),
        OnControlEvent<&CKalyxoView::OnElementChosen>(IDC_PERIODIC_TABLE, 1),
    };
    static const EventSinkMap map{nullptr, entries};
    return &map;
}

void CKalyxoView::OnUpdateBack(CCmdUI& ui) { ui.Enable(m_history.CanGoBack()); }

void CKalyxoView::OnUpdateForward(CCmdUI& ui) { ui.Enable(m_history.CanGoForward()); }

void CKalyxoView::OnUpdatePeriodicTable(CCmdUI& ui) { ui.SetCheck(m_mode == ContentMode::PeriodicTable); }

void CKalyxoView::OnUpdateDataAnalyser(CCmdUI& ui) { ui.SetCheck(m_mode == ContentMode::DataAnalyser); }

template <OnlinePage Page>
void CKalyxoView::OnOnlinePage() {
    const SitesConfig& sites = machine().sites();
    showPlainPage(OnlineAddress(Page, sites.product, sites.maker));
}

void CKalyxoView::OnHelp() { showPlainPage(TheApp().m_strDataFolder + "help.htm"); }

void CKalyxoView::showPlainPage(const std::string& address) {
    CEnlargedViewDlg(EnlargedViewMode::plainPage, address, {}).DoModal();
}

void CKalyxoView::OnPrint() {
    if (m_mode == ContentMode::DataAnalyser) {
        m_components.dataAnalyser.PrintView();
    } else {
        execInDocument(CWebBrowser::kCommandPrint);
    }
}

void CKalyxoView::OnUpdatePrint(CCmdUI& ui) {
    ui.Enable(m_mode == ContentMode::Page ||
              (m_mode == ContentMode::DataAnalyser && m_components.dataAnalyser.GetViewMode() != 0));
}

void CKalyxoView::OnUpdateBookmarkAdd(CCmdUI& ui) {
    const bool page = m_mode == ContentMode::Page && m_address.pageId > 0;
    ui.Enable(page || m_mode == ContentMode::PeriodicTable || m_mode == ContentMode::DataAnalyser);
}

void CKalyxoView::OnCut() {
    if (focusIsInSelectEdit()) platform::SendMessage(TheApp().m_hwndSelectEdit, WM_CUT);
}

void CKalyxoView::OnPaste() {
    if (focusIsInSelectEdit()) platform::SendMessage(TheApp().m_hwndSelectEdit, WM_PASTE);
}

void CKalyxoView::OnUpdateCutAndPaste(CCmdUI& ui) {
    ui.Enable(m_mode == ContentMode::Page && focusIsInSelectEdit());
}

void CKalyxoView::OnCopy() {
    if (focusIsInSelectEdit()) {
        platform::SendMessage(TheApp().m_hwndSelectEdit, WM_COPY);
        return;
    }
    execInDocument(CWebBrowser::kCommandCopy);
}

void CKalyxoView::execInDocument(std::int32_t command) {
    const std::shared_ptr<Dispatch> document = m_components.browser.Document();
    if (document) document->exec(command);
}

void CKalyxoView::OnUpdateCopy(CCmdUI& ui) { ui.Enable(m_mode == ContentMode::Page); }

void CKalyxoView::OnCopyAllData() { m_components.dataAnalyser.CopyAllData(); }

void CKalyxoView::OnUpdateCopyAllData(CCmdUI& ui) { ui.Enable(m_mode == ContentMode::DataAnalyser); }

void CKalyxoView::OnCopySelected() { m_components.dataAnalyser.CopySelection(); }

void CKalyxoView::OnUpdateCopySelected(CCmdUI& ui) {
    ui.Enable(m_mode == ContentMode::DataAnalyser && m_components.dataAnalyser.GetViewMode() == 0);
}

void CKalyxoView::OnCopyGraph() { m_components.dataAnalyser.CopyGraph(); }

void CKalyxoView::OnUpdateCopyGraph(CCmdUI& ui) {
    ui.Enable(m_mode == ContentMode::DataAnalyser && m_components.dataAnalyser.GetViewMode() != 0);
}

}  // namespace kalyxo
