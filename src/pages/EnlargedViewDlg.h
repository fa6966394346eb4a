#pragma once

#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/Button.h"
#include "src/components/WebBrowser.h"

namespace kalyxo {

/// What the enlarged-view dialog shows.
enum class EnlargedViewMode {
    enlargedView,  ///< the enlarged page of a cache folder
    plainPage,     ///< a page by its address
};

/// A window of its own for a page, closed by OK.
class CEnlargedViewDlg : public platform::CDialog {
  public:
    /// `address` is the cache folder, or the address of the page.
    CEnlargedViewDlg(EnlargedViewMode mode, std::string address, std::string caption);

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }

    const platform::MessageMap* GetMessageMap() const override;

  protected:
    void DoDataExchange(platform::CDataExchange& exchange) override;
    bool OnInitDialog() override;

  private:
    bool OnEraseBkgnd(platform::CDC& dc);

    EnlargedViewMode m_mode;
    std::string m_strAddress;
    std::string m_strCaption;
    CWebBrowser m_browser;
    platform::CButton m_ok;
};

}  // namespace kalyxo
