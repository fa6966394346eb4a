#include "src/bookmarks/BookmarkDlg.h"

#include <utility>

#include "platform/base/Resources.h"
#include "platform/dialogs/DataExchange.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/Progress.h"
#include "platform/framework/WinApp.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr int kMaxBookmarkName = 80;
constexpr UINT kDeleteKey = 46;
constexpr UINT kF2Key = 113;

/// The window's content, in dialog units.
constexpr CSize kCollapsed{224, 45};
constexpr CSize kExpanded{224, 234};

CSize windowSize(CSize content) {
    const CSize pixels = dialogPixels(content);
    return {pixels.cx + machine().metric(SM_CXDLGFRAME), pixels.cy + machine().metric(SM_CYCAPTION)};
}

bool confirmed(std::string_view question, std::string_view caption) {
    return MessageBox(question, caption, BoxButtons::yesNo, BoxIcon::question) == BoxAnswer::yes;
}

}  // namespace

const CRuntimeClass CBookmarkDlg::runtimeClass{"CBookmarkDlg"};

CBookmarkDlg::CBookmarkDlg(BookmarkList& list)
    : CDialog(IDD_BOOKMARK), m_list(list), m_pInitialFolder(list.CurrentFolder()) {}

const MessageMap* CBookmarkDlg::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnCommandId<&CBookmarkDlg::OnAdvanced>(IDC_BOOKMARK_ADVANCED),
        OnCommandId<&CBookmarkDlg::OnNewFolder>(IDC_BOOKMARK_NEW_FOLDER),
        OnCommandId<&CBookmarkDlg::OnRename>(IDC_BOOKMARK_RENAME),
        OnCommandId<&CBookmarkDlg::OnDelete>(IDC_BOOKMARK_DELETE),
        OnNotify<&CBookmarkDlg::OnTreeActivated>(IDC_BOOKMARK_TREE, NM_DBLCLK),
        OnNotify<&CBookmarkDlg::OnTreeActivated>(IDC_BOOKMARK_TREE, NM_RETURN),
        OnNotify<&CBookmarkDlg::OnTreeKeyDown>(IDC_BOOKMARK_TREE, TVN_KEYDOWN),
        OnNotify<&CBookmarkDlg::OnTreeBeginDrag>(IDC_BOOKMARK_TREE, TVN_BEGINDRAG),
        OnMessage<WM_KEYDOWN, &CBookmarkDlg::OnKeyDown>(),
    };
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

void CBookmarkDlg::Setup(std::string proposedName) {
    m_bAdd = true;
    m_strName = std::move(proposedName);
}

void CBookmarkDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Control(exchange, IDC_BOOKMARK_TREE, m_tree);
    DDX_Control(exchange, IDC_BOOKMARK_ADVANCED, m_advanced);
    DDX_Control(exchange, IDC_BOOKMARK_NAME, m_name);
    DDX_Text(exchange, IDC_BOOKMARK_NAME, m_strName);
    DDV_MaxChars(exchange, m_strName, kMaxBookmarkName);
}

bool CBookmarkDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    if (!fillTree()) {
        EndDialog(IDCANCEL);
    } else if (m_bAdd) {
        collapse();
    } else {
        openForGoto();
    }
    return false;
}

/// False when the user did not want to wait.
bool CBookmarkDlg::fillTree() {
    CProgress progress(LoadString(IDS_OPENING_BOOKMARKS));
    return m_tree.Fill(m_list, progress.Step());
}

void CBookmarkDlg::collapse() {
    SetWindowText(LoadString(IDS_BOOKMARK_ADD));
    const CSize size = windowSize(kCollapsed);
    const ScreenConfig& screen = machine().screen();
    const int x = screen.left + (screen.width - size.cx) / 2;
    const int y = screen.top + (screen.height - dialogPixels(kExpanded).cy) / 2;
    MoveWindow(CRect::at(x, y, size.cx, size.cy));
    showOrganiser(false);
    GotoDlgCtrl(IDOK);
}

void CBookmarkDlg::openForGoto() {
    SetWindowText(LoadString(IDS_BOOKMARK_GOTO));
    EnableDlgItem(IDC_BOOKMARK_NAME, false);
    m_advanced.EnableWindow(false);
    m_tree.SetFocus();
}

/// While the window is collapsed, the controls of the organiser are hidden, so that they take no keys.
void CBookmarkDlg::showOrganiser(bool show) {
    for (const int id :
         {IDC_BOOKMARK_NEW_FOLDER, IDC_BOOKMARK_RENAME, IDC_BOOKMARK_DELETE, IDC_BOOKMARK_TREE}) {
        ShowDlgItem(id, show);
    }
}

void CBookmarkDlg::OnAdvanced() {
    const CRect window = GetWindowRect();
    const CSize size = windowSize(kExpanded);
    MoveWindow(CRect::at(window.left, window.top, size.cx, size.cy));
    showOrganiser(true);
    m_tree.EnsureVisible(m_tree.GetSelectedItem());
    m_tree.SetFocus();
    m_advanced.EnableWindow(false);
}

std::optional<std::string> CBookmarkDlg::askName(NameFor mode, const std::string& current) {
    CFolderNameDlg dialog(mode, current);
    if (dialog.DoModal() != IDOK) return std::nullopt;
    std::string name = dialog.Text();
    if (name.empty() || name == current) return std::nullopt;
    return name;
}

void CBookmarkDlg::OnNewFolder() {
    m_tree.CancelDrag();
    const std::optional<std::string> name = askName(NameFor::newFolder, {});
    if (!name) return;
    auto folder = std::make_unique<CBMFolder>();
    folder->name = *name;
    m_tree.AddFolder(*folder);
    m_arrNew.push_back(std::move(folder));
}

void CBookmarkDlg::OnRename() {
    m_tree.CancelDrag();
    const Item item = m_tree.GetSelectedItem();
    if (!item) return;
    const NameFor mode = m_tree.IsFolderItem(item) ? NameFor::folder : NameFor::bookmark;
    const std::optional<std::string> name = askName(mode, m_tree.RecordOf(item)->name);
    if (name && !nameTaken(item, *name)) rename(item, *name);
}

/// Whether a neighbour of the item has this name already; the user is told.
bool CBookmarkDlg::nameTaken(Item item, const std::string& name) {
    const Item folder = m_tree.GetParentItem(item);
    if (!m_tree.HasName(folder ? m_tree.GetChildItem(folder) : m_tree.GetRootItem(), name, item))
        return false;
    if (folder) {
        MessageBox(LoadString(IDS_BOOKMARK_NAME_TAKEN), LoadString(IDS_BOOKMARK_RENAME));
    } else {
        MessageBox(LoadString(IDS_FOLDER_NAME_TAKEN), LoadString(IDS_FOLDER_NAME_TAKEN_CAPTION));
    }
    return true;
}

/// Puts a new record in the place of the former one, which stays as it is in case the dialog is cancelled.
void CBookmarkDlg::rename(Item item, const std::string& name) {
    std::unique_ptr<CBookmark> replacement = m_tree.RecordOf(item)->Renamed(name);
    m_tree.SetRecord(item, *replacement);
    m_arrNew.push_back(std::move(replacement));
}

void CBookmarkDlg::OnDelete() {
    m_tree.CancelDrag();
    m_tree.SetFocus();
    const Item item = m_tree.GetSelectedItem();
    if (!item) return;
    if (m_tree.IsFolderItem(item)) {
        deleteFolder(item);
    } else {
        deleteBookmark(item);
    }
}

void CBookmarkDlg::deleteBookmark(Item item) {
    if (confirmed(LoadString(IDS_BOOKMARK_DELETE_QUESTION), LoadString(IDS_BOOKMARK_DELETE))) {
        m_tree.DeleteItem(item);
    }
}

void CBookmarkDlg::deleteFolder(Item folder) {
    const std::string_view caption = LoadString(IDS_FOLDER_DELETE);
    if (isOnlyFolder(folder)) {
        MessageBox(LoadString(IDS_LAST_FOLDER_STAYS), caption);
        return;
    }
    if (!confirmed(LoadString(IDS_FOLDER_DELETE_QUESTION), caption)) return;
    if (m_tree.RecordOf(folder) == m_list.CurrentFolder()) m_list.SetCurrentFolder(nullptr);
    m_tree.DeleteItem(folder);
}

bool CBookmarkDlg::isOnlyFolder(Item folder) const {
    return !m_tree.GetNextSiblingItem(folder) && !m_tree.GetPrevSiblingItem(folder);
}

/// F2 in the tree renames the selected item; elsewhere it goes to the new bookmark's name.
void CBookmarkDlg::OnKeyDown(UINT key) {
    if (key != kF2Key) {
        DefWindowProc(WM_KEYDOWN, key, 0);
    } else if (GetFocus() == m_tree.GetSafeHwnd()) {
        OnRename();
    } else if (m_bAdd) {
        m_name.SetFocus();
        m_name.SetSel(0, -1);
    }
}

LRESULT CBookmarkDlg::OnTreeActivated(NMHDR&) {
    if (!m_bAdd && m_tree.GetParentItem(m_tree.GetSelectedItem())) OnOK();
    return 0;
}

LRESULT CBookmarkDlg::OnTreeKeyDown(NMTVKEYDOWN& notification) {
    if (notification.wVKey == kDeleteKey) OnDelete();
    return 0;
}

LRESULT CBookmarkDlg::OnTreeBeginDrag(NMTREEVIEW& notification) {
    m_tree.BeginDrag(notification.item);
    return 0;
}

void CBookmarkDlg::OnOK() {
    if (!UpdateData(true)) return;
    const Item selected = m_tree.GetSelectedItem();
    if (selected) m_list.SetCurrentFolder(m_tree.RecordOf(m_tree.FolderOf(selected)));
    if (m_bAdd) {
        const Item current = m_tree.FindFolder(m_list.CurrentFolder());
        if (m_tree.HasName(m_tree.GetChildItem(current ? current : m_tree.GetRootItem()), m_strName)) {
            MessageBox(LoadString(IDS_BOOKMARK_NAME_TAKEN), LoadString(IDS_BOOKMARK_ADD));
            return;
        }
    } else if (m_tree.GetParentItem(selected)) {
        m_pChosen = m_tree.RecordOf(selected);
    }
    m_list.Rearrange(m_tree.Records(), std::move(m_arrNew));
    EndDialog(IDOK);
}

void CBookmarkDlg::OnCancel() {
    m_list.SetCurrentFolder(m_pInitialFolder);
    EndDialog(IDCANCEL);
}

}  // namespace kalyxo
