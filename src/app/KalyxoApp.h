#pragma once

#include <string>

#include "platform/framework/WinApp.h"
#include "platform/windows/Geometry.h"
#include "src/app/DataPaths.h"
#include "src/app/Settings.h"
#include "src/content/HostedComponents.h"

namespace kalyxo {

/// The application object: the start-up sequence, and the settings and paths that everything else reads.
class CKalyxoApp : public platform::CWinApp {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    bool InitInstance() override;
    /// Swallows right clicks everywhere, and turns Enter in the browse selection's text field into a message
    /// to its notification window.
    bool PreTranslateMessage(const platform::MSG& message) override;

    bool m_bOutsideInstallFolder = false;
    int m_nSplitterPos = 0;     ///< left edge of the splitter in view pixels
    platform::CRect m_rcFrame;  ///< main frame, outer rectangle in screen pixels
    int m_nFrameState = 0;      ///< kFrameNormal or kFrameMaximised
    platform::HWND m_hwndSelectTarget = 0;
    platform::HWND m_hwndSelectEdit = 0;
    std::string m_strProgramFolder;  ///< no trailing backslash
    ComponentVersions m_versions;
    std::string m_strDataFolder;  ///< ends with a backslash
    std::string m_strBookmarkFile;

  private:
    void OnAppAbout();
    bool ReadRegistrySettings();
    bool SetUpDataPaths();
    void addDocTemplate();
    void chooseFirstShow();
    void warnOfFewColours();
};

/// The one application object.
CKalyxoApp& TheApp();

/// The warning for a screen of so many bits per pixel; empty when it shows enough colours.
std::string ColourDepthWarning(int bitsPerPixel);

/// Whether the main frame opens maximised because the screen is small.
constexpr bool IsSmallScreen(platform::CSize screen) { return screen.cx <= 640 || screen.cy <= 480; }

}  // namespace kalyxo
