#include "src/view/KalyxoView.h"

/// The view and the slide-out tool panel.
namespace kalyxo {

using namespace platform;

void CKalyxoView::OnToolbar() {
    if (m_panel.IsWindowVisible()) {
        m_panel.AnimateHide();
    } else if (m_bPanelNeverShown) {
        m_panel.ShowAtViewCorner(GetWindowRect());
        m_bPanelNeverShown = false;
    } else {
        AnimateShow();
    }
}

void CKalyxoView::OnUpdateToolbar(CCmdUI& ui) { ui.SetCheck(m_panel.IsWindowVisible()); }

void CKalyxoView::AnimateShow() { m_panel.AnimateShow(GetWindowRect()); }

}  // namespace kalyxo
