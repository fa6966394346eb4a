#pragma once

#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/Edit.h"

namespace kalyxo {

/// What a name is asked for.
enum class NameFor { newFolder, folder, bookmark };

/// Asks for the name of a folder or bookmark.
class CFolderNameDlg : public platform::CDialog {
  public:
    explicit CFolderNameDlg(NameFor mode, std::string text = {});

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }

    /// After OK the name, without white space around it.
    std::string Text() const;

  protected:
    void DoDataExchange(platform::CDataExchange& exchange) override;
    bool OnInitDialog() override;

  private:
    NameFor m_mode;
    std::string m_text;
    platform::CEdit m_edit;
};

}  // namespace kalyxo
