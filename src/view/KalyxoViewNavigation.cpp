#include "formats/PageNumber.h"
#include "formats/SectionTable.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/Progress.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "platform/text/GreekLiteral.h"
#include "src/pages/EnlargedViewDlg.h"
#include "src/pages/GlossaryText.h"
#include "src/pages/LastPreparedPage.h"
#include "src/search/SearchDlg.h"
#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"

/// How the view comes to a page: sections, events of the components, and the history.
namespace kalyxo {

using namespace platform;
using namespace platform::literals;

void CKalyxoView::OpenSection(std::int16_t sectionCode, std::int32_t pageNumber) {
    const bool needLayout = m_mode != ContentMode::Page;
    enterPageMode(sectionCode);
    // The page is opened before the panes are laid out.
    if (pageNumber > 0) OpenPage(pageNumber);
    if (needLayout) layOutPage();
}

void CKalyxoView::openSectionOfSlot(int slot) {
    const std::int16_t code = SectionCommands()[static_cast<std::size_t>(slot)].code;
    const std::int32_t startPage = formats::sectionByCode(code)->startPage;
    m_address.pageId = startPage;
    m_address.itemCode = 0;
    OpenSection(code, startPage);
}

void CKalyxoView::OpenPage(std::int32_t pageNumber) {
    if (!m_preparer) return;  // a start that failed has no cache
    RecordHistory(m_address);
    // A number that names no file is reported like a page that is missing.
    const std::string source =
        TheApp().m_strDataFolder + formats::pagePath(pageNumber).value_or(std::to_string(pageNumber));
    const std::string target = m_cache.NextTarget();
    switch (preparePage(source, target)) {
        case PrepareResult::prepared:
            LastPreparedPage() = target;
            break;
        case PrepareResult::noSource:
            AfxMessageBox("ERROR: Can't open " + source);
            break;
        case PrepareResult::noTarget:
            AfxMessageBox("Unable to create temporary file");
            break;
    }
    ShowPreparedPage(target);
}

PrepareResult CKalyxoView::preparePage(const std::string& source, const std::string& target) {
    CProgress progress("Ετοιμάζεται η σελίδα…"_gr);
    return m_preparer->PreparePage(source, target, m_contents, progress.Step());
}

void CKalyxoView::ShowPreparedPage(const std::string& target) {
    const std::string redirect = m_contents.video ? m_cache.WriteRedirect(target) : std::string();
    m_components.browser.Navigate(redirect.empty() ? target : redirect,
                                  Variant(CWebBrowser::kNoHistoryNoCache));
    m_cache.CleanCache(false);
}

bool CKalyxoView::OnPageChosen(std::int32_t pageNumber, std::int32_t pageId) {
    m_address.pageId = pageId;
    m_address.itemCode = 0;
    OpenPage(pageNumber);
    return true;
}

bool CKalyxoView::OnItemChosen(std::int32_t itemCode) {
    m_address.itemCode = itemCode;
    OpenPage(itemCode);
    return true;
}

bool CKalyxoView::OnElementChosen(std::int16_t elementKey) {
    constexpr std::int16_t elementsAndCompounds = 6;
    const std::optional<std::int32_t> page = m_elements.PageOf(elementKey);
    if (m_mode != ContentMode::PeriodicTable || !page) return true;
    OpenSection(elementsAndCompounds, 0);
    m_components.select.ShowItem(*page, 0, false);
    return true;
}

bool CKalyxoView::OnBeforeNavigate(const std::string& url, std::int32_t, const std::string&, const Variant&,
                                   const std::string&, bool* cancel) {
    if (m_bInterceptionSuppressed) return true;
    if (IsEnlargedViewLink(url)) {
        *cancel = true;
        // Not from within the browser's question, during which no page can be loaded.
        PostMessage(WM_COMMAND, 0, kShowEnlargedView);
    } else if (const std::optional<std::string> file = GlossaryFile(url)) {
        *cancel = true;
        showDefinition(*file);
    }
    return true;
}

void CKalyxoView::showDefinition(const std::string& file) {
    m_glossary.Hide();
    const std::string path = TheApp().m_strDataFolder + "glossary\\" + file;
    if (const auto definition = ReadDefinition(machine().files(), path)) m_glossary.Show(*definition);
}

void CKalyxoView::ShowEnlargedView() {
    const std::int32_t item = m_address.itemCode;
    std::string title = item != 0 ? m_components.select.GetItemTitle(item)
                                  : m_components.select.GetPageTitle(m_address.pageId);
    CEnlargedViewDlg(EnlargedViewMode::enlargedView, m_cache.Folder(), std::move(title)).DoModal();
}

void CKalyxoView::OnSearch() {
    CSearchDlg dialog(machine().files(), TheApp().m_strDataFolder, m_search);
    if (dialog.DoModal() != IDOK || dialog.Chosen().pageId < 1) return;
    m_search = dialog.State();
    const SearchHit& hit = dialog.Chosen();
    OpenSection(hit.sectionCode, 0);
    m_address.pageId = hit.pageId;
    m_components.select.ShowItem(hit.pageId, hit.itemCode, false);
}

void CKalyxoView::GoBack() {
    if (m_history.StepBack()) ReplayHistory();
}

void CKalyxoView::GoForward() {
    if (m_history.StepForward()) ReplayHistory();
}

void CKalyxoView::ReplayHistory() {
    const History::Replay replay(m_history);
    const PageAddress place = m_history.Current();
    if (place.sectionCode == kPeriodicTableCode) {
        ShowPeriodicTable();
    } else if (place.sectionCode == kDataAnalyserCode) {
        ShowDataAnalyser();
    } else if (SlotOfSection(place.sectionCode) >= 0) {
        restorePage(place);
    }
}

void CKalyxoView::openPlace(const PageAddress& place) {
    m_address = place;
    if (IsSectionStartPage(place.pageId)) {
        OpenSection(place.sectionCode, place.pageId);
    } else {
        OpenSection(place.sectionCode, 0);
        m_components.select.ShowItem(place.pageId, place.itemCode, false);
    }
}

void CKalyxoView::restorePage(const PageAddress& place) {
    openPlace(place);
    m_components.select.ShowItem(place.pageId, place.itemCode, false);
}

}  // namespace kalyxo
