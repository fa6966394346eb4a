#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/Button.h"
#include "platform/widgets/Edit.h"
#include "src/bookmarks/BookmarkList.h"
#include "src/bookmarks/BookmarkTree.h"
#include "src/bookmarks/FolderNameDlg.h"

namespace kalyxo {

/// The organiser of the bookmarks, which asks for the name and folder of a new one, or for the one to go to.
/// The tree is a working copy: the list changes only when the dialog is closed with OK. Until then the list
/// owns its records, and the dialog owns the new ones. At the end the list keeps the records that are in the
/// tree.
class CBookmarkDlg : public platform::CDialog {
  public:
    explicit CBookmarkDlg(BookmarkList& list);

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    /// Has the dialog ask for the name of a new bookmark, and proposes one. Without this call it asks for the
    /// bookmark to go to.
    void Setup(std::string proposedName);

    /// After OK the name of the new bookmark; the list's current folder takes it.
    const std::string& Name() const { return m_strName; }
    /// After OK, the bookmark of the list to go to; null when a folder was selected.
    const CBookmark* Chosen() const { return m_pChosen; }

  protected:
    void DoDataExchange(platform::CDataExchange& exchange) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

  private:
    using Item = CBookmarkTree::Item;

    // Buttons and keys
    void OnAdvanced();
    void OnNewFolder();
    void OnRename();
    void OnDelete();
    void OnKeyDown(platform::UINT key);

    // Notifications of the tree
    platform::LRESULT OnTreeActivated(platform::NMHDR& notification);
    platform::LRESULT OnTreeKeyDown(platform::NMTVKEYDOWN& notification);
    platform::LRESULT OnTreeBeginDrag(platform::NMTREEVIEW& notification);

    bool fillTree();
    void collapse();
    void showOrganiser(bool show);
    void openForGoto();

    static std::optional<std::string> askName(NameFor mode, const std::string& current);
    bool nameTaken(Item item, const std::string& name);
    void rename(Item item, const std::string& name);
    void deleteBookmark(Item item);
    void deleteFolder(Item folder);
    bool isOnlyFolder(Item folder) const;

    BookmarkList& m_list;
    bool m_bAdd = false;
    const CBookmark* m_pInitialFolder;
    std::string m_strName;
    const CBookmark* m_pChosen = nullptr;
    BookmarkArray m_arrNew;
    CBookmarkTree m_tree;
    platform::CEdit m_name;
    platform::CButton m_advanced;
};

}  // namespace kalyxo
