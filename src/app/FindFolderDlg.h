#pragma once

#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/ComboBox.h"
#include "platform/widgets/TreeCtrl.h"
#include "src/state/DataPaths.h"

namespace kalyxo {

/// Lets the user pick a folder from a list of drives and a tree of folders. A folder is read when it is first
/// opened, and not again.
class CFindFolderDlg : public platform::CDialog {
  public:
    explicit CFindFolderDlg(FolderPurpose mode);

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    /// The folder that was chosen, without a backslash at its end.
    const std::string& Folder() const { return m_strFolder; }

  protected:
    void DoDataExchange(platform::CDataExchange& exchange) override;
    bool OnInitDialog() override;
    void OnOK() override;

  private:
    void OnDriveSelected();
    platform::LRESULT OnItemExpanding(platform::NMTREEVIEW& notification);

    bool readSubfolders(platform::HTREEITEM item);
    bool insertSubfolders(platform::HTREEITEM item);
    void insertPlaceholder(platform::HTREEITEM item);
    std::string pathOf(platform::HTREEITEM item) const;

    std::string m_strFolder;
    platform::CTreeCtrl m_tree;
    platform::CComboBox m_drives;
    FolderPurpose m_nMode;
};

}  // namespace kalyxo
