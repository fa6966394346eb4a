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

/// The browse selection's windows that the program has to do with.
struct SelectWindows {
    platform::HWND edit = 0;    ///< its text field
    platform::HWND target = 0;  ///< takes the notice of Enter in it
};

/// Where the components find their content, and who hosts them.
struct ComponentSurroundings {
    std::string programFolder;  ///< no trailing backslash; its ActiveX folder holds the component files
    std::string dataFolder;
};

/// The components that the view keeps for the whole run.
class HostedComponents {
  public:
    /// Creates them hidden in `view`, in their order, and readies them. A component that cannot be created is
    /// registered from the ActiveX folder and tried once more; the failure when that fails too is a text for
    /// the user in code page 1253.
    platform::Result<void> Create(platform::CWnd& view, const ComponentSurroundings& surroundings,
                                  ComponentVersions& versions, SelectWindows& selectWindows);

    CPeriodTable periodicTable;
    CSelect select;
    CDataAnal dataAnalyser;
    CWebBrowser browser;
};

/// Components whose reported version sorts before the one that the program needs, byte by byte: their keys in
/// the order in which the user is told.
std::vector<std::string_view> OutdatedComponents(const ComponentVersions& versions);

}  // namespace kalyxo
