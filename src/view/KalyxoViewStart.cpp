#include "platform/base/Resources.h"
#include "platform/browser/BrowserPolicy.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "platform/plugins/PluginTypes.h"
#include "platform/text/GreekLiteral.h"
#include "src/components/ComponentCheck.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"
#include "src/view/KalyxoView.h"

/// The view's first update.
namespace kalyxo {

using namespace platform;
using namespace platform::literals;

void CKalyxoView::OnInitialUpdate() {
    CView::OnInitialUpdate();
    SetAccessibleName("Ενότητες"_gr);
    m_handCursor = CCursor::resource(IDC_HAND_CURSOR);
    SetTimer(1, 250);
    readyBrowser();
    if (!componentsAreUpToDate() || !createComponents()) {
        m_bStartupFailed = true;
        return;
    }
    m_components.browser.Navigate(TheApp().m_strDataFolder + "a.htm");
    m_panel.Create(this);
    openCache();
    LoadBookmarks();
    LoadElementIndex();
    loadPictures();
    m_glossary.Create(*this);
    CheckComponentVersions();
}

/// Only a program outside its installed folder brings components of its own along.
bool CKalyxoView::componentsAreUpToDate() {
    if (!TheApp().m_bOutsideInstallFolder) return true;
    const auto replaceOlder = [] {
        return AfxMessageBox(LoadString(IDS_OLDER_VERSION), BoxButtons::yesNo) == BoxAnswer::yes;
    };
    const auto result = ComponentCheck(machine(), TheApp().m_strProgramFolder, replaceOlder).Run();
    if (result == ComponentCheck::Result::registered) AfxMessageBox(LoadString(IDS_RUN_AGAIN));
    return result == ComponentCheck::Result::upToDate;
}

void CKalyxoView::readyBrowser() {
    BrowserPolicy::instance().setAllowedFolders({TheApp().m_strDataFolder});
    BrowserPolicy::instance().setAllowedHosts({machine().sites().product, machine().sites().maker});
    PluginTypes& types = PluginTypes::instance();
    for (const char* video : {"webm", "mp4", "m4v", "ogv", "avi", "mov", "mpg", "mpeg"}) {
        types.add(video, ":/plugins/video.html");
    }
    for (const char* molecule : {"mol", "sdf", "xyz", "pdb", "ent", "cml"}) {
        types.add(molecule, ":/plugins/molecule.html");
    }
}

CacheLocation CKalyxoView::cacheLocation() const {
    const ProgramState& app = TheApp();
    return LocateCache(app.m_strProgramFolder, machine().tempFolder(), app.m_bOutsideInstallFolder);
}

bool CKalyxoView::createComponents() {
    ProgramState& app = TheApp();
    const ComponentSurroundings surroundings{app.m_strProgramFolder, app.m_strDataFolder};
    SelectWindows windows;
    const std::optional<std::string> failure =
        m_components.Create(*this, surroundings, app.m_versions, windows);
    app.m_hwndSelectEdit = windows.edit;
    app.m_hwndSelectTarget = windows.target;
    if (failure) AfxMessageBox(*failure);
    return !failure;
}

void CKalyxoView::CheckComponentVersions() {
    for (const std::string_view key : OutdatedComponents(TheApp().m_versions)) {
        AfxMessageBox(std::string(key).append(LoadString(IDS_COMPONENT_OUTDATED)));
    }
}

void CKalyxoView::openCache() {
    m_cache.Open(cacheLocation());
    BrowserPolicy::instance().setAllowedFolders({TheApp().m_strDataFolder, m_cache.Folder()});
    m_preparer.emplace(machine().files(), TheApp().m_strDataFolder, m_cache.Folder());
}

void CKalyxoView::LoadElementIndex() {
    if (!m_elements.Load(machine().files(), TheApp().m_strDataFolder)) {
        AfxMessageBox("Can't open ptable.ndx");
    }
}

void CKalyxoView::loadPictures() {
    m_menu.LoadPictures(machine().files(), TheApp().m_strDataFolder + "images\\", [](PictureResult result) {
        AfxMessageBox(result == PictureResult::outOfMemory ? "Out of memory" : "BMP file error");
    });
}

}  // namespace kalyxo
