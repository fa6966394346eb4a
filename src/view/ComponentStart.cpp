#include "src/view/ComponentStart.h"

#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/machine/Machine.h"
#include "src/components/ComponentCheck.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

using platform::AfxMessageBox;
using platform::LoadString;

/// Only a program outside its installed folder brings components of its own along.
bool ComponentStart::areUpToDate() {
    if (!TheApp().m_bOutsideInstallFolder) return true;
    const auto replaceOlder = [] {
        return AfxMessageBox(LoadString(IDS_OLDER_VERSION), platform::BoxButtons::yesNo) ==
               platform::BoxAnswer::yes;
    };
    const auto result = ComponentCheck(platform::machine(), TheApp().m_strProgramFolder, replaceOlder).Run();
    if (result == ComponentCheck::Result::registered) AfxMessageBox(LoadString(IDS_RUN_AGAIN));
    return result == ComponentCheck::Result::upToDate;
}

bool ComponentStart::create() {
    ProgramState& app = TheApp();
    SelectWindows windows;
    const auto created =
        m_components.Create(m_view, {app.m_strProgramFolder, app.m_strDataFolder}, app, windows);
    app.m_hwndSelectEdit = windows.edit;
    app.m_hwndSelectTarget = windows.target;
    if (!created) AfxMessageBox(created.failure().message);
    return static_cast<bool>(created);
}

void ComponentStart::CheckComponentVersions() {
    for (const std::string_view key : OutdatedComponents(TheApp())) {
        AfxMessageBox(std::string(key).append(LoadString(IDS_COMPONENT_OUTDATED)));
    }
}

}  // namespace kalyxo
