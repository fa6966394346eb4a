#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "platform/text/GreekLiteral.h"
#include "src/bookmarks/AnalyserCapture.h"
#include "src/bookmarks/BookmarkDlg.h"
#include "src/bookmarks/BookmarkFile.h"
#include "src/bookmarks/BookmarkNames.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"

/// The view's bookmarks: loading and saving, adding one, and going to one.
namespace kalyxo {

using namespace platform;
using namespace platform::literals;

void CKalyxoView::LoadBookmarks() {
    if (kalyxo::LoadBookmarks(machine().files(), TheApp().m_strBookmarkFile, m_bookmarks) ==
        BookmarkLoad::damaged) {
        AfxMessageBox(
            "Το αρχείο σελιδοδεικτών είναι κατεστραμμένο. Οι υπάρχοντες σελιδοδείκτες θα χαθούν."_gr);
    }
}

void CKalyxoView::SaveBookmarks() {
    const std::string& path = TheApp().m_strBookmarkFile;
    switch (kalyxo::SaveBookmarks(machine().files(), path, m_bookmarks.Records())) {
        case BookmarkSave::saved:
            break;
        case BookmarkSave::notCreated:
            AfxMessageBox(std::string(LoadString(IDS_BOOKMARKS_NOT_CREATED)).append(path));
            break;
        case BookmarkSave::notWritten:
            AfxMessageBox(LoadString(IDS_BOOKMARKS_NOT_WRITTEN));
            break;
    }
}

void CKalyxoView::OnBookmarkAdd() {
    CBookmarkDlg dialog(m_bookmarks);
    dialog.SetUpAdd(proposedName());
    if (dialog.DoModal() == IDOK) m_bookmarks.Add(MakeBookmark(dialog.Name()));
}

std::string CKalyxoView::proposedName() {
    switch (m_mode) {
        case ContentMode::PeriodicTable:
            return ProposedBookmarkName(kPeriodicTableName,
                                        std::to_string(m_bookmarks.CountOf<CBMPeriodic>() + 1));
        case ContentMode::DataAnalyser:
            return ProposedBookmarkName(kDataAnalyserName,
                                        std::to_string(m_bookmarks.CountOf<CBMDataAn>() + 1));
        default:
            return ProposedBookmarkName(m_address.sectionCode, pageTitle());
    }
}

std::string CKalyxoView::pageTitle() {
    if (m_address.itemCode != 0) return m_components.select.GetItemTitle(m_address.itemCode);
    const std::string title = m_components.select.GetPageTitle(m_address.pageId);
    return title.empty() ? "Introduction" : title;
}

std::unique_ptr<CBookmark> CKalyxoView::MakeBookmark(const std::string& name) {
    switch (m_mode) {
        case ContentMode::PeriodicTable:
            return MakePeriodicBookmark(name);
        case ContentMode::DataAnalyser:
            return MakeDataAnBookmark(name);
        default:
            return MakeBrowseBookmark(name);
    }
}

std::unique_ptr<CBookmark> CKalyxoView::MakeBrowseBookmark(const std::string& name) const {
    auto bookmark = std::make_unique<CBMBrowse>();
    bookmark->name = name;
    bookmark->sectionCode = m_address.sectionCode;
    bookmark->pageId = m_address.pageId;
    bookmark->itemCode = m_address.itemCode;
    return bookmark;
}

std::unique_ptr<CBookmark> CKalyxoView::MakePeriodicBookmark(const std::string& name) {
    auto bookmark = std::make_unique<CBMPeriodic>();
    bookmark->name = name;
    bookmark->stateA = m_components.periodicTable.GetStateA();
    bookmark->stateB = m_components.periodicTable.GetStateB();
    return bookmark;
}

std::unique_ptr<CBookmark> CKalyxoView::MakeDataAnBookmark(const std::string& name) {
    auto bookmark = std::make_unique<CBMDataAn>();
    bookmark->name = name;
    static_cast<AnalyserState&>(*bookmark) = CaptureAnalyser(m_components.dataAnalyser);
    return bookmark;
}

void CKalyxoView::OnBookmarkGoto() {
    CBookmarkDlg dialog(m_bookmarks);
    if (dialog.DoModal() == IDOK && dialog.Chosen()) openBookmark(*dialog.Chosen());
}

void CKalyxoView::openBookmark(const CBookmark& bookmark) {
    if (const auto* const page = dynamic_cast<const CBMBrowse*>(&bookmark)) {
        openPageBookmark(*page);
    } else if (const auto* const table = dynamic_cast<const CBMPeriodic*>(&bookmark)) {
        m_components.periodicTable.SetState(table->stateA, table->stateB);
        ShowPeriodicTable();
    } else {
        ShowDataAnalyser(dynamic_cast<const CBMDataAn*>(&bookmark));
    }
}

void CKalyxoView::openPageBookmark(const CBMBrowse& bookmark) {
    if (SlotOfSection(bookmark.sectionCode) < 0) {
        AfxMessageBox("Internal error!");
        return;
    }
    openPlace({bookmark.sectionCode, bookmark.pageId, bookmark.itemCode});
}

}  // namespace kalyxo
