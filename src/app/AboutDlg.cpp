#include "src/app/AboutDlg.h"

#include <utility>

#include "platform/framework/Shell.h"
#include "platform/windows/MessageMap.h"
#include "src/pages/LastPreparedPage.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

/// The logo, in pixels of the client area.
constexpr CRect kLogo{218, 11, 315, 40};

}  // namespace

const CRuntimeClass CAboutDlg::runtimeClass{"CAboutDlg"};

CAboutDlg::CAboutDlg(ComponentVersions versions) : CDialog(IDD_ABOUT), m_versions(std::move(versions)) {}

const MessageMap* CAboutDlg::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {OnMessage<WM_LBUTTONDOWN, &CAboutDlg::OnLButtonDown>()};
    static const MessageMap map{CDialog::GetMessageMap(), entries};
    return &map;
}

bool CAboutDlg::OnInitDialog() {
    SetDlgItemText(IDC_VERSION_DATA_ANALYSER, m_versions.dataAn);
    SetDlgItemText(IDC_VERSION_PERIODIC_TABLE, m_versions.periodic);
    SetDlgItemText(IDC_VERSION_SELECT, m_versions.select);
    SetDlgItemText(IDC_VERSION_MOLECULE_CONTROLLER, m_versions.molCtrl);
    SetDlgItemText(IDC_VERSION_MOLECULE_ZOOM, m_versions.zoom);
    return CDialog::OnInitDialog();
}

void CAboutDlg::OnLButtonDown(UINT, CPoint point) {
    if (!kLogo.PtInRect(point) || LastPreparedPage().empty()) return;
    ShellExecute("open", "notepad.exe", LastPreparedPage(), "c:\\");
}

}  // namespace kalyxo
