#pragma once

#include <string>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace kalyxo {

/// Versions that the components report.
struct ComponentVersions {
    std::string m_strVerPeriodic;
    std::string m_strVerSelect;
    std::string m_strVerDataAn;
    std::string m_strVerMolCtrl;
    std::string m_strVerZoom;
};

/// The settings and paths of the run. The start-up sequence fills them, all other code reads them. There is
/// one object, a part of the application object.
struct ProgramState : ComponentVersions {
    ProgramState();
    ~ProgramState();
    ProgramState(const ProgramState&) = delete;
    ProgramState& operator=(const ProgramState&) = delete;

    bool m_bOutsideInstallFolder = false;
    int m_nSplitterPos = 0;     ///< left edge of the splitter in view pixels
    platform::CRect m_rcFrame;  ///< main frame, outer rectangle in screen pixels
    int m_nFrameState = 0;      ///< kFrameNormal or kFrameMaximised
    int m_nTextSize = 100;      ///< of pages at the start, in percent
    platform::HWND m_hwndSelectTarget = 0;
    platform::HWND m_hwndSelectEdit = 0;
    std::string m_strProgramFolder;  ///< no trailing backslash
    std::string m_strDataFolder;     ///< ends with a backslash
    bool m_bFollowContent = false;   ///< whether a page is shown anew when the data folder changes
    std::string m_strBookmarkFile;
    std::string m_strLastPreparedPage;  ///< DOS path of the page file written last; empty before the first
};

/// The one object; the application object must exist.
ProgramState& TheApp();

}  // namespace kalyxo
