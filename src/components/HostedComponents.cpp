#include "src/components/HostedComponents.h"

#include <array>

#include "platform/base/Resources.h"
#include "src/components/ClassIds.h"
#include "src/components/ComponentCheck.h"
#include "src/components/MoleculeComponents.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using platform::CRect;
using platform::CWnd;
using platform::Failure;
using platform::UINT;
using platform::WS_CHILD;
using platform::WS_VISIBLE;

namespace {

/// Creates components in a view.
struct Creation {
    CWnd& view;
    const std::string& programFolder;

    /// Tries twice, the second time after registering the component's file.
    template <class Wrapper>
    bool create(Wrapper& wrapper, std::string_view windowName, UINT id, std::string_view file) const {
        const CRect client = view.GetClientRect();
        if (wrapper.Create(windowName, WS_CHILD, client, view, id)) return true;
        RegisterComponentFile(programFolder, file);
        return wrapper.Create(windowName, WS_CHILD, client, view, id);
    }
};

/// The browser's first place: out of sight, to the left of the client area.
CRect browserParkedIn(const CWnd& view) { return {-800, 0, -500, view.GetClientRect().Height()}; }

struct RequiredVersion {
    std::string ComponentVersions::* reported;
    std::string_view key;
    std::string_view minimum;
};

constexpr std::array kRequired = {
    RequiredVersion{&ComponentVersions::m_strVerDataAn, "KZDATAAN", "1.0.032"},
    RequiredVersion{&ComponentVersions::m_strVerPeriodic, "KYPT", "1.0.023"},
    RequiredVersion{&ComponentVersions::m_strVerSelect, "KZSELECT", "1.0.021"},
    RequiredVersion{&ComponentVersions::m_strVerMolCtrl, "KYMOL", "1.0.012"},
    RequiredVersion{&ComponentVersions::m_strVerZoom, "KZZOOM", "1.0.010"},
};

}  // namespace

platform::Result<void> HostedComponents::Create(CWnd& view, const ComponentSurroundings& surroundings,
                                                ComponentVersions& versions, SelectWindows& selectWindows) {
    const Creation creation{view, surroundings.programFolder};
    if (!creation.create(periodicTable, "PTable", IDC_PERIODIC_TABLE, kPeriodTableFile)) {
        return Failure{std::string(platform::LoadString(IDS_NO_PERIODIC_TABLE))};
    }
    versions.m_strVerPeriodic = periodicTable.Version();
    periodicTable.SetDataFolder(surroundings.dataFolder);

    if (!creation.create(select, "", IDC_SELECT, kSelectFile)) {
        return Failure{std::string(platform::LoadString(IDS_NO_BROWSE_SELECTION))};
    }
    select.Initialise(kSelectHostCode, surroundings.dataFolder, view.GetSafeHwnd());
    selectWindows.edit = select.GetEditWindow();
    selectWindows.target = select.GetAuxHandle();
    versions.m_strVerSelect = select.Version();

    if (!creation.create(dataAnalyser, "DataAn", IDC_DATA_ANALYSER, kDataAnalFile)) {
        return Failure{std::string(platform::LoadString(IDS_NO_DATA_ANALYSER))};
    }
    dataAnalyser.Initialise(kDataAnalHostCode, surroundings.dataFolder);
    versions.m_strVerDataAn = dataAnalyser.Version();

    CMolCtrl molCtrl;
    if (!creation.create(molCtrl, "MolCtrl", IDC_VERSION_CHECK, kMolCtrlFile)) {
        return Failure{std::string(platform::LoadString(IDS_NO_MOLECULE_CONTROLLER))};
    }
    versions.m_strVerMolCtrl = molCtrl.Version();
    molCtrl.DestroyWindow();

    CKzZoom zoom;
    if (!creation.create(zoom, "KzZoom", IDC_VERSION_CHECK, kKzZoomFile)) {
        return Failure{std::string(platform::LoadString(IDS_NO_MOLECULE_ZOOM))};
    }
    versions.m_strVerZoom = zoom.GetVersion();
    zoom.DestroyWindow();

    if (!browser.Create("Web", WS_CHILD | WS_VISIBLE, browserParkedIn(view), view, IDC_WEB)) {
        return Failure{std::string(platform::LoadString(IDS_NO_BROWSER))};
    }
    return {};
}

void HostedComponents::ReadSelectionAnew(const CWnd& view, const std::string& dataFolder) {
    select.Initialise(kSelectHostCode, dataFolder, view.GetSafeHwnd());
}

std::vector<std::string_view> OutdatedComponents(const ComponentVersions& versions) {
    std::vector<std::string_view> keys;
    for (const RequiredVersion& row : kRequired) {
        if (versions.*row.reported < row.minimum) keys.push_back(row.key);
    }
    return keys;
}

}  // namespace kalyxo
