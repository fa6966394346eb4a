#include "controls/contract/HostMessages.h"
#include "formats/SectionTable.h"
#include "platform/machine/Machine.h"
#include "platform/text/CodePage1253.h"
#include "platform/windows/MessageMap.h"
#include "src/pages/EnlargedViewDlg.h"
#include "src/pages/GlossaryText.h"
#include "src/resources/CommandIds.h"
#include "src/search/SearchDlg.h"
#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"

/// The view's maps, its commands, and what it does on its components' events.
namespace kalyxo {

using namespace platform;

template <bool (CommandRules::*Rule)() const>
void CKalyxoView::enableBy(CCmdUI& ui) {
    ui.Enable((m_rules.*Rule)());
}

template <bool (CommandRules::*Rule)() const>
void CKalyxoView::checkBy(CCmdUI& ui) {
    ui.SetCheck((m_rules.*Rule)());
}

template <UINT Command>
void CKalyxoView::OnSection() {
    m_navigator.OpenStartPage(SectionOfCommand(Command));
}

template <UINT Command>
void CKalyxoView::OnUpdateSection(CCmdUI& ui) {
    ui.SetCheck(m_rules.Section(SectionOfCommand(Command)));
}

template <void (EditCommands::*Command)()>
void CKalyxoView::OnEdit() {
    (m_edit.*Command)();
}

const MessageMap* CKalyxoView::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_SIZE, &CKalyxoView::OnSize>(),
        OnMessage<WM_SETCURSOR, &CKalyxoView::OnSetCursor>(),
        OnMessage<WM_LBUTTONDOWN, &CKalyxoView::OnLButtonDown>(),
        OnMessage<WM_ERASEBKGND, &CKalyxoView::OnEraseBkgnd>(),
        OnMessage<WM_MOUSEMOVE, &CKalyxoView::OnMouseMove>(),
        OnMessage<WM_TIMER, &CKalyxoView::OnTimer>(),
        OnMessage<WM_DESTROY, &CKalyxoView::OnDestroy>(),
        OnMessage<WM_KEYDOWN, &CKalyxoView::OnKeyDown>(),
        OnMessage<WM_KILLFOCUS, &CKalyxoView::OnKillFocus>(),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_REACT>>(ID_SECTION_REACT),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_REACT>>(ID_SECTION_REACT),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_STRUCT>>(ID_SECTION_STRUCT),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_STRUCT>>(ID_SECTION_STRUCT),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_ELEMCOMP>>(ID_SECTION_ELEMCOMP),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_ELEMCOMP>>(ID_SECTION_ELEMCOMP),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_USES>>(ID_SECTION_USES),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_USES>>(ID_SECTION_USES),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_SOURCE>>(ID_SECTION_SOURCE),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_SOURCE>>(ID_SECTION_SOURCE),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_HISTORY>>(ID_SECTION_HISTORY),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_HISTORY>>(ID_SECTION_HISTORY),
        OnCommandId<&CKalyxoView::OnSection<ID_SECTION_CONCEPT>>(ID_SECTION_CONCEPT),
        OnUpdateId<&CKalyxoView::OnUpdateSection<ID_SECTION_CONCEPT>>(ID_SECTION_CONCEPT),
        OnCommandId<&CKalyxoView::ShowPeriodicTable>(ID_PERIODIC_TABLE),
        OnUpdateId<&CKalyxoView::checkBy<&CommandRules::PeriodicTable>>(ID_PERIODIC_TABLE),
        OnCommandId<&CKalyxoView::OnDataAnalyser>(ID_DATA_ANALYSER),
        OnUpdateId<&CKalyxoView::checkBy<&CommandRules::DataAnalyser>>(ID_DATA_ANALYSER),
        OnCommandId<&CKalyxoView::OnBookmarkAdd>(ID_BOOKMARK_ADD),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::BookmarkAdd>>(ID_BOOKMARK_ADD),
        OnCommandId<&CKalyxoView::OnBookmarkGoto>(ID_BOOKMARK_GOTO),
        OnCommandId<&CKalyxoView::OnToolbar>(ID_TOOLBAR),
        OnUpdateId<&CKalyxoView::OnUpdateToolbar>(ID_TOOLBAR),
        OnCommandId<&CKalyxoView::GoBack>(ID_BACK),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Back>>(ID_BACK),
        OnCommandId<&CKalyxoView::GoForward>(ID_FORWARD),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Forward>>(ID_FORWARD),
        OnCommandId<&CKalyxoView::ShowMainMenu>(ID_FILE_NEW),
        OnCommandId<&CKalyxoView::OnBookmarkGoto>(ID_FILE_OPEN),
        OnCommandId<&CKalyxoView::OnOnlinePage<OnlinePage::product>>(ID_ONLINE_PRODUCT),
        OnCommandId<&CKalyxoView::OnOnlinePage<OnlinePage::support>>(ID_ONLINE_SUPPORT),
        OnCommandId<&CKalyxoView::OnOnlinePage<OnlinePage::products>>(ID_ONLINE_PRODUCTS),
        OnCommandId<&CKalyxoView::OnHelp>(ID_HELP_CONTENTS),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::Print>>(ID_FILE_PRINT),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Print>>(ID_FILE_PRINT),
        OnCommandId<&CKalyxoView::OnSearch>(ID_SEARCH),
        OnCommandId<&CKalyxoView::OnFindInPage>(ID_EDIT_FIND),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::FindInPage>>(ID_EDIT_FIND),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::Cut>>(ID_EDIT_CUT),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::CutAndPaste>>(ID_EDIT_CUT),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::CopyToClipboard>>(ID_EDIT_COPY),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Copy>>(ID_EDIT_COPY),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::Paste>>(ID_EDIT_PASTE),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::CutAndPaste>>(ID_EDIT_PASTE),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::CopyMolecule>>(ID_COPY_MOLECULE),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Molecule>>(ID_COPY_MOLECULE),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::CopyVideo>>(ID_COPY_VIDEO),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Video>>(ID_COPY_VIDEO),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::PrintMolecule>>(ID_PRINT_MOLECULE),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Molecule>>(ID_PRINT_MOLECULE),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::PrintVideo>>(ID_PRINT_VIDEO),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::Video>>(ID_PRINT_VIDEO),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::CopyAllData>>(ID_COPY_ALL_DATA),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::CopyAllData>>(ID_COPY_ALL_DATA),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::CopySelected>>(ID_COPY_SELECTED),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::CopySelected>>(ID_COPY_SELECTED),
        OnCommandId<&CKalyxoView::OnEdit<&EditCommands::CopyGraph>>(ID_COPY_GRAPH),
        OnUpdateId<&CKalyxoView::enableBy<&CommandRules::CopyGraph>>(ID_COPY_GRAPH),
    };
    static const MessageMap map{CView::GetMessageMap(), kEntries};
    return &map;
}

const EventSinkMap* CKalyxoView::GetEventSinkMap() const {
    static constexpr EventSinkEntry kEntries[] = {
        OnComponentEvent<&CKalyxoView::OnBeforeNavigate>(IDC_WEB, 100),
        OnComponentEvent<&CKalyxoView::OnPageChosen>(IDC_SELECT, 1),
        OnComponentEvent<&CKalyxoView::OnItemChosen>(IDC_SELECT, 2),
        OnComponentEvent<&CKalyxoView::OnElementChosen>(IDC_PERIODIC_TABLE, 1),
    };
    static const EventSinkMap map{nullptr, kEntries};
    return &map;
}

template <OnlinePage Page>
void CKalyxoView::OnOnlinePage() {
    const SitesConfig& sites = machine().sites();
    showPlainPage(OnlineAddress(Page, sites.product, sites.maker));
}

void CKalyxoView::OnHelp() { showPlainPage(TheApp().m_strDataFolder + "help.htm"); }

void CKalyxoView::showPlainPage(const std::string& address) {
    CEnlargedViewDlg(EnlargedViewMode::plainPage, address, {}).DoModal();
}

void CKalyxoView::ShowEnlargedView() {
    // The press in a page that asks for the view may have come before another dialog opened.
    if (!IsWindowEnabled()) return;
    const PageAddress& place = m_navigator.Address();
    std::string title = place.itemCode != 0 ? m_components.select.GetItemTitle(place.itemCode)
                                            : m_components.select.GetPageTitle(place.pageId);
    CEnlargedViewDlg(EnlargedViewMode::enlargedView, m_pages.Cache().Folder(), std::move(title)).DoModal();
}

void CKalyxoView::searchFor(const std::string& text) {
    SearchState state = m_search;
    state.word = toLower(text);
    state.row = -1;
    search(state);
}

void CKalyxoView::search(const SearchState& state) {
    CSearchDlg dialog(machine().files(), TheApp().m_strDataFolder, state);
    if (dialog.DoModal() != IDOK || dialog.Chosen().pageId < 1) return;
    m_search = dialog.State();
    const SearchHit& hit = dialog.Chosen();
    m_pages.MarkWords(dialog.SearchedWords());
    m_navigator.OpenTopic({hit.sectionCode, hit.pageId, hit.itemCode});
    m_pages.MarkWords({});
}

void CKalyxoView::OnToolbar() {
    if (m_panel.IsWindowVisible()) {
        m_panel.AnimateHide();
    } else if (m_bPanelNeverShown) {
        m_panel.ShowAtCorner(areaBelowBar().offset(ClientToScreen({0, 0})));
        m_bPanelNeverShown = false;
    } else {
        AnimateShow();
    }
}

void CKalyxoView::OnUpdateToolbar(CCmdUI& ui) { ui.SetCheck(m_panel.IsWindowVisible()); }

bool CKalyxoView::OnPageChosen(std::int32_t pageNumber, std::int32_t pageId) {
    m_navigator.OnPageChosen(pageNumber, pageId);
    return true;
}

bool CKalyxoView::OnItemChosen(std::int32_t itemCode) {
    m_navigator.OnItemChosen(itemCode);
    return true;
}

bool CKalyxoView::OnElementChosen(std::int16_t elementKey) {
    const std::optional<std::int32_t> page = m_elements.PageOf(elementKey);
    if (m_panes.Mode() != ContentMode::PeriodicTable || !page) return true;
    m_navigator.OpenSection(formats::sectionByKey("elemcomp")->code, 0);
    ShowItem(*page, 0);
    return true;
}

bool CKalyxoView::OnBeforeNavigate(const std::string& url, std::int32_t, const std::string&, const Variant&,
                                   const std::string&, bool* cancel) {
    if (m_bInterceptionSuppressed) return true;
    if (IsEnlargedViewLink(url)) {
        *cancel = true;
        // Posted, since no page can be loaded while the browser waits for the answer to its question.
        PostMessage(WM_COMMAND, 0, controls::showEnlargedView);
    } else if (const std::optional<std::string> file = GlossaryFile(url)) {
        *cancel = true;
        showDefinition(*file);
    }
    return true;
}

void CKalyxoView::showDefinition(const std::string& file) {
    m_glossary.Hide();
    const std::string path = TheApp().m_strDataFolder + "glossary\\" + file;
    const auto definition = ReadDefinition(machine().files(), path);
    if (!definition) return;
    // The box opens at the pointer.
    m_pages.PointAtLink();
    m_glossary.Show(*definition);
}

}  // namespace kalyxo
