#include "src/pages/EnlargedViewDlg.h"

#include <utility>

#include "platform/dialogs/DataExchange.h"
#include "platform/drawing/DC.h"
#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "src/pages/EnlargedPages.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

struct InnerSize {
    int width;
    int height;
    int extraWidth;  ///< by which the browser is wider than the dialog
};

InnerSize innerSize(EnlargedViewMode mode) {
    if (mode == EnlargedViewMode::plainPage) return {580, 380, 0};
    return {650, 530, machine().metric(SM_CXVSCROLL) + 14};
}

constexpr CSize kButton{60, 20};
/// The colour around the page, which is a little smaller than the dialog. A page with a video has the same.
constexpr COLORREF kGround = RGB(192, 192, 192);
/// The height of the strip below the browser, in which the button stands.
constexpr int kButtonStrip = 26;
constexpr int kButtonFromBottom = 22;

/// Where the parts of the dialog lie. It follows from the dialog's mode and the system's metrics.
struct Layout {
    CRect outer;    ///< on the screen
    CRect browser;  ///< in the client area; may be wider, so that a scroll bar lies outside
    CRect button;
};

Layout layOut(EnlargedViewMode mode) {
    const InnerSize inner = innerSize(mode);
    const Machine& system = machine();
    const CSize outer{inner.width + 2 * system.metric(SM_CXDLGFRAME),
                      inner.height + system.metric(SM_CYCAPTION) + 2 * system.metric(SM_CYDLGFRAME)};
    return {
        CRect::at(system.screen().left + (system.screen().width - outer.cx) / 2,
                  system.screen().top + (system.metric(SM_CYMAXIMIZED) - outer.cy) / 2, outer.cx, outer.cy),
        CRect::at(0, 0, inner.width + inner.extraWidth, inner.height - kButtonStrip),
        CRect::at((outer.cx - kButton.cx) / 2, inner.height - kButtonFromBottom, kButton.cx, kButton.cy),
    };
}

}  // namespace

const CRuntimeClass CEnlargedViewDlg::runtimeClass{"CEnlargedViewDlg"};

CEnlargedViewDlg::CEnlargedViewDlg(EnlargedViewMode mode, std::string address, std::string caption)
    : CDialog(IDD_ENLARGED_VIEW),
      m_mode(mode),
      m_strAddress(std::move(address)),
      m_strCaption(std::move(caption)) {}

const MessageMap* CEnlargedViewDlg::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_ERASEBKGND, &CEnlargedViewDlg::OnEraseBkgnd>()};
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

bool CEnlargedViewDlg::OnEraseBkgnd(CDC& dc) {
    if (m_mode == EnlargedViewMode::plainPage) return false;
    dc.FillSolidRect(GetClientRect(), kGround);
    return true;
}

void CEnlargedViewDlg::DoDataExchange(CDataExchange& exchange) { DDX_Control(exchange, IDOK, m_ok); }

bool CEnlargedViewDlg::OnInitDialog() {
    const bool defaultFocus = CDialog::OnInitDialog();
    SetWindowText(m_strCaption);
    const Layout layout = layOut(m_mode);
    MoveWindow(layout.outer);
    m_ok.MoveWindow(layout.button);
    if (m_mode == EnlargedViewMode::enlargedView) m_strAddress += kEnlargedPage;
    m_browser.Create({}, WS_VISIBLE, layout.browser, *this, IDC_ENLARGED_BROWSER);
    m_browser.Navigate(m_strAddress);
    return defaultFocus;
}

}  // namespace kalyxo
