#pragma once

#include <string>

#include "src/display/TipEdit.h"

namespace kalyxo {

/// Where the pop-up lies in a client area of the size `client`, for a text of `lines` lines. It lies below
/// the pointer, or above it when there is no room below. It never leaves the area, and is no higher than the
/// area.
platform::CRect PlaceGlossaryPopup(platform::CPoint pointer, platform::CSize client, int lines);

/// The box that shows a glossary term's definition beside the pointer.
class GlossaryPopup {
  public:
    /// Creates the window in the view, hidden.
    bool Create(platform::CWnd& view);

    /// Shows a definition until the user clicks, presses a key, or goes elsewhere. One that is taller than
    /// the view scrolls with the mouse wheel.
    void Show(const std::string& definition);
    void Hide() { m_tip.Hide(); }

    bool IsVisible() const { return m_tip.IsWindowVisible(); }
    std::string Text() const { return m_tip.GetWindowText(); }
    /// In the view's client area.
    platform::CRect Place() const;

  private:
    CTipEdit m_tip;
};

}  // namespace kalyxo
