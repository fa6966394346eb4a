#include "platform/framework/Resources.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "platform/text/GreekLiteral.h"
#include "src/app/KalyxoApp.h"
#include "src/bookmarks/BookmarkFile.h"
#include "src/content/KalyxoView.h"
#include "src/resources/ResourceIds.h"

/// The view's bookmarks.
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

}  // namespace kalyxo
