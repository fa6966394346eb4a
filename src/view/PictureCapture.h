#pragma once

#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

namespace kalyxo {

/// The pictures that pages embed.
enum class PluginKind { molecule, video };

/// Where the picture and its title go on a printed page, in device pixels.
struct PrintedPicture {
    platform::CRect picture;
    platform::CRect title;
    int letterHeight;

    friend bool operator==(const PrintedPicture&, const PrintedPicture&) = default;
};

/// The picture is half as wide as the page and stands in the middle; a third of the free height is above it.
/// The title stands above the picture, in letters of a seventh of an inch.
PrintedPicture LayOutPrintedPicture(PluginKind kind, platform::CSize page, int logPixelsY);

/// Where a picture goes.
enum class CaptureMode { copy, print };

/// Copies or prints the picture of the molecule or video in a page. It is found among the windows inside the
/// browser by the size of its window.
class PictureCapture {
  public:
    explicit PictureCapture(platform::HWND browser) : m_browser(browser) {}

    /// Both put the picture on the clipboard, or print it under a title. Without a printer the user is told;
    /// nothing happens when the page has no picture.
    void CaptureMolecule(CaptureMode mode, std::string_view title = {}) const {
        capture(PluginKind::molecule, mode, title);
    }
    void CaptureVideo(CaptureMode mode, std::string_view title = {}) const {
        capture(PluginKind::video, mode, title);
    }

  private:
    void capture(PluginKind kind, CaptureMode mode, std::string_view title) const;

    platform::HWND m_browser;
};

}  // namespace kalyxo
