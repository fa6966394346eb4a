#pragma once

#include <string>

#include "src/display/TipEdit.h"

namespace kalyxo {

/// Where the pop-up lies in a client area of this size for a text of so many lines: below the pointer and
/// shifted from the right edge, or above the pointer where there is no room below it, but never beyond the
/// upper edge, and no higher than the area.
platform::CRect PlaceGlossaryPopup(platform::CPoint pointer, platform::CSize client, int lines);

/// The box that shows a glossary term's definition beside the pointer.
class GlossaryPopup {
  public:
    /// Makes it hidden in the view.
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
