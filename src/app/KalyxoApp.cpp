#include "src/app/KalyxoApp.h"

#include <memory>

#include "controls/contract/HostMessages.h"
#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/Wait.h"
#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "src/app/AboutDlg.h"
#include "src/app/FindFolderDlg.h"
#include "src/app/MainFrame.h"
#include "src/app/SplashDlg.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"
#include "src/state/DataPaths.h"
#include "src/state/Settings.h"
#include "src/view/KalyxoDoc.h"
#include "src/view/KalyxoView.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr std::uint32_t kStartUpWaitMs = 2000;
constexpr std::size_t kMaxDirectory = 256;
constexpr int kEnoughBitsPerPixel = 16;
/// On a screen that is no wider or no higher than this the main frame opens maximised.
constexpr CSize kSmallScreen{640, 480};

std::optional<std::string> askForFolder(FolderPurpose purpose) {
    CFindFolderDlg chooser(purpose);
    return chooser.DoModal() == IDOK ? std::optional(chooser.Folder()) : std::nullopt;
}

CRect screenArea() {
    const ScreenConfig& screen = machine().screen();
    return CRect::at(screen.left, screen.top, screen.width, screen.height);
}

/// The warning for a screen of so many bits per pixel; empty when it shows enough colours.
std::string colourDepthWarning(int bitsPerPixel) {
    if (bitsPerPixel >= kEnoughBitsPerPixel) return {};
    return std::string(LoadString(IDS_SCREEN_SHOWS_ONLY))
        .append(bitsPerPixel == 8 ? "256" : "16")
        .append(LoadString(IDS_SO_MANY_COLOURS));
}

}  // namespace

const CRuntimeClass CKalyxoApp::runtimeClass{"CKalyxoApp"};

const MessageMap* CKalyxoApp::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {OnCommandId<&CKalyxoApp::OnAppAbout>(ID_APP_ABOUT)};
    static const MessageMap map{CWinApp::GetMessageMap(), kEntries};
    return &map;
}

bool CKalyxoApp::InitInstance() {
    if (!ReadRegistrySettings()) return false;
    CSplashDlg splash;
    if (!AfxOleInit()) {
        AfxMessageBox(LoadString(IDS_OLE_INIT_FAILED));
        return false;
    }
    if (!SetUpDataPaths()) return false;
    addDocTemplate();
    chooseFirstShow();
    if (!ProcessShellCommand()) return false;
    warnOfFewColours();
    platform::Sleep(kStartUpWaitMs);
    splash.DestroyWindow();
    return true;
}

bool CKalyxoApp::ReadRegistrySettings() {
    const std::optional<RegistryKey> key =
        machine().registry().openKey(HKEY_LOCAL_MACHINE, SettingsKeyPath());
    if (!key) {
        AfxMessageBox(LoadString(IDS_REGISTRY_UNREADABLE));
        return false;
    }
    const ProgramLocation location =
        LocateProgram(machine().programPath(), key->queryString("Directory", kMaxDirectory));
    m_strProgramFolder = location.folder;
    m_bOutsideInstallFolder = location.outsideInstallFolder;
    const WindowLayout layout = ReadLayout(*key, screenArea());
    m_nSplitterPos = layout.splitterPos;
    m_nFrameState = layout.frameState;
    m_rcFrame = layout.frame;
    m_nTextSize = ReadTextSize(*key);
    return true;
}

bool CKalyxoApp::SetUpDataPaths() {
    std::optional<DataPaths> paths = FindDataPaths(
        machine().files(), {m_strProgramFolder, machine().tempFolder(), m_strGivenDataFolder}, askForFolder);
    if (!paths) return false;
    m_strDataFolder = std::move(paths->dataFolder);
    m_strBookmarkFile = std::move(paths->bookmarkFile);
    machine().files().setContentFolder(m_strDataFolder);
    return true;
}

void CKalyxoApp::addDocTemplate() {
    AddDocTemplate(std::make_unique<CSingleDocTemplate>(CKalyxoDoc::runtimeClass, CMainFrame::runtimeClass,
                                                        CKalyxoView::runtimeClass));
}

void CKalyxoApp::chooseFirstShow() {
    const ScreenConfig& screen = machine().screen();
    const bool isSmall = screen.width <= kSmallScreen.cx || screen.height <= kSmallScreen.cy;
    m_nCmdShow = isSmall ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
}

void CKalyxoApp::warnOfFewColours() {
    const std::string warning = colourDepthWarning(machine().screen().bitsPerPixel);
    if (!warning.empty()) AfxMessageBox(warning);
}

void CKalyxoApp::OnAppAbout() { CAboutDlg().DoModal(); }

bool CKalyxoApp::PreTranslateMessage(const MSG& message) {
    if (message.message == WM_RBUTTONDOWN || message.message == WM_RBUTTONUP) return true;
    if (message.message == WM_KEYDOWN && message.wParam == VK_RETURN && m_hwndSelectEdit != 0 &&
        message.hwnd == m_hwndSelectEdit) {
        platform::SendMessage(m_hwndSelectTarget, controls::enterInSelectEdit);
        return true;
    }
    return CWinApp::PreTranslateMessage(message);
}

}  // namespace kalyxo
