#include "src/app/AboutDlg.h"

#include "platform/framework/Shell.h"
#include "platform/windows/MessageMap.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

using namespace platform;

namespace {

/// The logo, in pixels of the client area.
constexpr CRect kLogo{218, 11, 315, 40};

}  // namespace

const CRuntimeClass CAboutDlg::runtimeClass{"CAboutDlg"};

CAboutDlg::CAboutDlg() : CDialog(IDD_ABOUT) {}

const MessageMap* CAboutDlg::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {OnMessage<WM_LBUTTONDOWN, &CAboutDlg::OnLButtonDown>()};
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

bool CAboutDlg::OnInitDialog() {
    const ProgramState& app = TheApp();
    SetDlgItemText(IDC_VERSION_DATA_ANALYSER, app.m_strVerDataAn);
    SetDlgItemText(IDC_VERSION_PERIODIC_TABLE, app.m_strVerPeriodic);
    SetDlgItemText(IDC_VERSION_SELECT, app.m_strVerSelect);
    SetDlgItemText(IDC_VERSION_MOLECULE_CONTROLLER, app.m_strVerMolCtrl);
    SetDlgItemText(IDC_VERSION_MOLECULE_ZOOM, app.m_strVerZoom);
    return CDialog::OnInitDialog();
}

void CAboutDlg::OnLButtonDown(UINT, CPoint point) {
    const std::string& page = TheApp().m_strLastPreparedPage;
    if (kLogo.PtInRect(point) && !page.empty()) ShellExecute("open", "notepad.exe", page, "c:\\");
}

}  // namespace kalyxo
