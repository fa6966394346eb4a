#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Result.h"
#include "src/components/DataAnal.h"
#include "src/components/PeriodTable.h"
#include "src/components/Select.h"
#include "src/components/WebBrowser.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

/// The windows of the browse selection that the program uses.
struct SelectWindows {
    platform::HWND edit = 0;    ///< its text field
    platform::HWND target = 0;  ///< the notice of an Enter key in the text field goes to it
};

/// The folders that the components need.
struct ComponentSurroundings {
    std::string programFolder;  ///< no trailing backslash; its ActiveX folder holds the component files
    std::string dataFolder;
};

/// The components that the view keeps while the program runs.
class HostedComponents {
  public:
    /// Creates them hidden in `view`, in their order, and readies them. A component that cannot be created is
    /// registered from the ActiveX folder and tried once more; the failure when that fails too is a text for
    /// the user in code page 1253.
    platform::Result<void> Create(platform::CWnd& view, const ComponentSurroundings& surroundings,
                                  ComponentVersions& versions, SelectWindows& selectWindows);
    /// Has the browse selection read its index once more, from a data folder that has changed.
    void ReadSelectionAnew(const platform::CWnd& view, const std::string& dataFolder);

    CPeriodTable periodicTable;
    CSelect select;
    CDataAnal dataAnalyser;
    CWebBrowser browser;
};

/// The keys of the components whose version is too old, in the order in which the user is told. Versions are
/// compared as texts, byte by byte.
std::vector<std::string_view> OutdatedComponents(const ComponentVersions& versions);

}  // namespace kalyxo
