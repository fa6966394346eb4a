#include "src/app/FindFolderDlg.h"

#include <utility>

#include "platform/base/Resources.h"
#include "platform/dialogs/DataExchange.h"
#include "platform/dialogs/Progress.h"
#include "platform/machine/Machine.h"
#include "platform/windows/Cursor.h"
#include "platform/windows/MessageMap.h"
#include "src/app/DriveList.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

const CRuntimeClass CFindFolderDlg::runtimeClass{"CFindFolderDlg"};

CFindFolderDlg::CFindFolderDlg(FolderPurpose mode) : CDialog(IDD_FIND_FOLDER), m_nMode(mode) {}

const MessageMap* CFindFolderDlg::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnControl<&CFindFolderDlg::OnDriveSelected>(IDC_FOLDER_DRIVES, CBN_SELCHANGE),
        OnNotify<&CFindFolderDlg::OnItemExpanding>(IDC_FOLDER_TREE, TVN_ITEMEXPANDING),
    };
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

void CFindFolderDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Control(exchange, IDC_FOLDER_TREE, m_tree);
    DDX_Control(exchange, IDC_FOLDER_DRIVES, m_drives);
}

bool CFindFolderDlg::OnInitDialog() {
    const bool defaultFocus = CDialog::OnInitDialog();
    const bool bookmarks = m_nMode == FolderPurpose::storeBookmarks;
    SetDlgItemText(IDC_FOLDER_PROMPT, LoadString(bookmarks ? IDS_LOCATE_BOOKMARKS : IDS_LOCATE_CONTENT));
    m_strFolder.clear();
    const DriveList drives = ListDrives(machine().files());
    for (const std::string& entry : drives.entries) m_drives.AddString(entry);
    m_drives.SetCurSel(drives.selected);
    OnDriveSelected();
    return defaultFocus;
}

void CFindFolderDlg::OnDriveSelected() {
    m_tree.DeleteAllItems();
    const std::optional<char> letter = DriveLetter(m_drives.GetLBText(m_drives.GetCurSel()));
    if (!letter) return;
    const CWaitCursor wait;
    const HTREEITEM root = m_tree.InsertItem(std::string{*letter, ':', '\\'});
    if (readSubfolders(root)) m_tree.Expand(root);
}

LRESULT CFindFolderDlg::OnItemExpanding(NMTREEVIEW& notification) {
    const HTREEITEM first = m_tree.GetChildItem(notification.item);
    const bool unread = first && m_tree.GetItemText(first).empty();
    if (!unread) return 0;
    const CWaitCursor wait;
    m_tree.DeleteItem(first);
    readSubfolders(notification.item);
    return 0;
}

/// When the user does not want to wait, the item stays one that is not read yet.
bool CFindFolderDlg::readSubfolders(HTREEITEM item) {
    if (insertSubfolders(item)) return true;
    while (const HTREEITEM child = m_tree.GetChildItem(item)) m_tree.DeleteItem(child);
    insertPlaceholder(item);
    return false;
}

bool CFindFolderDlg::insertSubfolders(HTREEITEM item) {
    CProgress progress(LoadString(IDS_READING_FOLDERS));
    const ProgressStep step = progress.Step();
    const std::vector<std::string> names = ListSubfolders(machine().files(), pathOf(item) + "\\", step);
    for (std::size_t i = 0; i < names.size() && step(i, names.size()); ++i) {
        insertPlaceholder(m_tree.InsertItem(names[i], item));
    }
    if (!progress.Cancelled()) m_tree.SortChildren(item);
    return !progress.Cancelled();
}

/// Without a text, it stands for folders that are not read yet, so that the item can be opened.
void CFindFolderDlg::insertPlaceholder(HTREEITEM item) { m_tree.InsertItem({}, item); }

std::string CFindFolderDlg::pathOf(HTREEITEM item) const {
    std::string path;
    for (; item; item = m_tree.GetParentItem(item)) {
        std::string text = m_tree.GetItemText(item);
        if (text.ends_with('\\')) text.resize(2);
        if (!path.empty()) text.append("\\").append(path);
        path = std::move(text);
    }
    return path;
}

void CFindFolderDlg::OnOK() {
    const HTREEITEM selected = m_tree.GetSelectedItem();
    if (!selected) return;
    m_strFolder = pathOf(selected);
    EndDialog(IDOK);
}

}  // namespace kalyxo
