#include "src/view/BookmarkCommands.h"

#include "formats/SectionTable.h"
#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/machine/Machine.h"
#include "src/bookmarks/AnalyserCapture.h"
#include "src/bookmarks/BookmarkDlg.h"
#include "src/bookmarks/BookmarkNames.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

using platform::AfxMessageBox;
using platform::LoadString;
using platform::machine;

void BookmarkCommands::LoadBookmarks() {
    m_file.emplace(machine().files(), TheApp().m_strBookmarkFile, machine().folder());
    if (m_file->Load(m_bookmarks) == BookmarkLoad::damaged) {
        AfxMessageBox(LoadString(IDS_BOOKMARKS_DAMAGED));
    }
}

void BookmarkCommands::SaveBookmarks() {
    if (!m_file) return;
    switch (m_file->Save(m_bookmarks.Records())) {
        case BookmarkSave::saved:
            break;
        case BookmarkSave::notCreated:
            AfxMessageBox(
                std::string(LoadString(IDS_BOOKMARKS_NOT_CREATED)).append(TheApp().m_strBookmarkFile));
            break;
        case BookmarkSave::notWritten:
            AfxMessageBox(LoadString(IDS_BOOKMARKS_NOT_WRITTEN));
            break;
    }
}

void BookmarkCommands::OnBookmarkAdd(ContentMode mode) {
    CBookmarkDlg dialog(m_bookmarks);
    dialog.Setup(ProposedName(mode));
    if (dialog.DoModal() == platform::IDOK) m_bookmarks.Add(MakeBookmark(mode, dialog.Name()));
}

std::string BookmarkCommands::ProposedName(ContentMode mode) {
    switch (mode) {
        case ContentMode::PeriodicTable:
            return ProposedBookmarkName(kPeriodicTableName,
                                        std::to_string(m_bookmarks.CountOf<CBMPeriodic>() + 1));
        case ContentMode::DataAnalyser:
            return ProposedBookmarkName(kDataAnalyserName,
                                        std::to_string(m_bookmarks.CountOf<CBMDataAn>() + 1));
        default:
            return ProposedBookmarkName(m_navigator.Address().sectionCode, pageTitle());
    }
}

std::string BookmarkCommands::pageTitle() {
    const PageAddress& place = m_navigator.Address();
    if (place.itemCode != 0) return m_components.select.GetItemTitle(place.itemCode);
    const std::string title = m_components.select.GetPageTitle(place.pageId);
    return title.empty() ? std::string(LoadString(IDS_BOOKMARK_INTRODUCTION)) : title;
}

std::unique_ptr<CBookmark> BookmarkCommands::MakeBookmark(ContentMode mode, const std::string& name) {
    std::unique_ptr<CBookmark> bookmark = mode == ContentMode::PeriodicTable  ? MakePeriodicBookmark()
                                          : mode == ContentMode::DataAnalyser ? MakeDataAnBookmark()
                                                                              : MakeBrowseBookmark();
    bookmark->name = name;
    return bookmark;
}

std::unique_ptr<CBookmark> BookmarkCommands::MakeBrowseBookmark() const {
    auto bookmark = std::make_unique<CBMBrowse>();
    static_cast<PageAddress&>(*bookmark) = m_navigator.Address();
    return bookmark;
}

std::unique_ptr<CBookmark> BookmarkCommands::MakePeriodicBookmark() {
    auto bookmark = std::make_unique<CBMPeriodic>();
    bookmark->stateA = m_components.periodicTable.GetStateA();
    bookmark->stateB = m_components.periodicTable.GetStateB();
    return bookmark;
}

std::unique_ptr<CBookmark> BookmarkCommands::MakeDataAnBookmark() {
    auto bookmark = std::make_unique<CBMDataAn>();
    static_cast<AnalyserState&>(*bookmark) = CaptureAnalyser(m_components.dataAnalyser);
    return bookmark;
}

void BookmarkCommands::OnBookmarkGoto() {
    CBookmarkDlg dialog(m_bookmarks);
    if (dialog.DoModal() == platform::IDOK && dialog.Chosen() != nullptr) Open(*dialog.Chosen());
}

void BookmarkCommands::Open(const CBookmark& bookmark) {
    if (const auto* const page = dynamic_cast<const CBMBrowse*>(&bookmark)) {
        openPage(*page);
    } else if (const auto* const table = dynamic_cast<const CBMPeriodic*>(&bookmark)) {
        m_components.periodicTable.SetState(table->stateA, table->stateB);
        m_host.ShowPeriodicTable();
    } else {
        m_host.ShowDataAnalyser(dynamic_cast<const CBMDataAn*>(&bookmark));
    }
}

void BookmarkCommands::openPage(const PageAddress& place) {
    if (formats::sectionByCode(place.sectionCode) == nullptr) {
        AfxMessageBox(LoadString(IDS_INTERNAL_ERROR));
    } else {
        m_navigator.OpenPlace(place);
    }
}

}  // namespace kalyxo
