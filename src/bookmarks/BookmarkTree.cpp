#include "src/bookmarks/BookmarkTree.h"

#include "platform/windows/MessageMap.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

CBookmarkTree::CBookmarkTree() : m_dragCursor(CCursor::FromResource(IDC_DRAG_CURSOR)) {}

const MessageMap* CBookmarkTree::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_MOUSEMOVE, &CBookmarkTree::OnMouseMove>(),
        OnMessage<WM_LBUTTONUP, &CBookmarkTree::OnLButtonUp>(),
        OnMessage<WM_SETCURSOR, &CBookmarkTree::OnSetCursor>(),
    };
    static const MessageMap map{CTreeCtrl::GetMessageMap(), kEntries};
    return &map;
}

bool CBookmarkTree::Fill(const BookmarkList& list, const ProgressStep& step) {
    Item selected = nullptr;
    Item folder = nullptr;
    std::size_t done = 0;
    for (const auto& record : list.Records()) {
        if (!GoesOn(step, done++, list.Records().size())) return false;
        if (!IsFolder(*record)) {
            addItem(*record, folder, TreePlace::last);
            continue;
        }
        folder = AddFolder(*record);
        if (!selected || record.get() == list.CurrentFolder()) selected = folder;
    }
    Expand(selected);
    SelectItem(selected);
    return true;
}

CBookmarkTree::Item CBookmarkTree::AddFolder(const CBookmark& folder) {
    return addItem(folder, nullptr, TreePlace::sorted);
}

CBookmarkTree::Item CBookmarkTree::addItem(const CBookmark& record, Item folder, TreePlace place) {
    const Item item = InsertItem(record.name, folder, place);
    SetItemData(item, reinterpret_cast<LPARAM>(&record));
    return item;
}

void CBookmarkTree::SetRecord(Item item, const CBookmark& record) {
    SetItemText(item, record.name);
    SetItemData(item, reinterpret_cast<LPARAM>(&record));
}

const CBookmark* CBookmarkTree::RecordOf(Item item) const {
    return reinterpret_cast<const CBookmark*>(GetItemData(item));
}

CBookmarkTree::Item CBookmarkTree::FolderOf(Item item) const {
    const Item folder = GetParentItem(item);
    return folder ? folder : item;
}

CBookmarkTree::Item CBookmarkTree::FindFolder(const CBookmark* folder) const {
    Item item = GetRootItem();
    while (item && RecordOf(item) != folder) item = GetNextSiblingItem(item);
    return item;
}

bool CBookmarkTree::HasName(Item first, std::string_view name, Item except) const {
    for (Item item = first; item; item = GetNextSiblingItem(item)) {
        if (item != except && RecordOf(item)->name == name) return true;
    }
    return false;
}

std::vector<const CBookmark*> CBookmarkTree::Records() const {
    std::vector<const CBookmark*> records;
    for (Item folder = GetRootItem(); folder; folder = GetNextSiblingItem(folder)) {
        records.push_back(RecordOf(folder));
        for (Item item = GetChildItem(folder); item; item = GetNextSiblingItem(item)) {
            records.push_back(RecordOf(item));
        }
    }
    return records;
}

void CBookmarkTree::BeginDrag(Item item) {
    SetFocus();
    if (IsFolderItem(item)) SelectItem(item);
    if (!GetParentItem(item)) return;
    m_dragged = item;
    m_bDragging = true;
    SetCapture();
}

void CBookmarkTree::OnMouseMove(UINT, CPoint point) {
    if (!m_bDragging) return Default();
    UINT where = 0;
    if (const Item item = HitTest(point, where)) {
        showCursor(m_dragCursor);
        return aimAt(item);
    }
    showCursor(CCursor::NoEntry());
    // While the pointer is above or below the tree, each message scrolls by one item.
    if (where == TVHT_BELOW) aimAt(GetNextVisibleItem(GetSelectedItem()));
    if (where == TVHT_ABOVE) aimAt(GetPrevVisibleItem(GetSelectedItem()));
}

void CBookmarkTree::aimAt(Item item) {
    if (!item || item == m_dropTarget) return;
    SelectItem(item);
    EnsureVisible(item);
    m_dropTarget = item;
}

void CBookmarkTree::showCursor(const CCursor& cursor) {
    m_shownCursor = cursor;
    cursor.Set();
}

bool CBookmarkTree::OnSetCursor() {
    if (m_bDragging) {
        m_shownCursor.Set();
    } else {
        Default();
    }
    return m_bDragging;
}

void CBookmarkTree::OnLButtonUp(UINT, CPoint) {
    if (!m_bDragging) return Default();
    const Item dragged = m_dragged;
    const Item folder = FolderOf(m_dropTarget);
    CancelDrag();
    drop(dragged, folder);
}

void CBookmarkTree::CancelDrag() {
    if (!m_bDragging) return;
    CCursor::Arrow().Set();
    ReleaseCapture();
    m_bDragging = false;
    m_dragged = nullptr;
    m_dropTarget = nullptr;
}

void CBookmarkTree::drop(Item dragged, Item folder) {
    if (!folder || folder == GetParentItem(dragged)) return;
    const CBookmark& record = *RecordOf(dragged);
    DeleteItem(dragged);
    addItem(record, folder, TreePlace::last);
}

}  // namespace kalyxo
