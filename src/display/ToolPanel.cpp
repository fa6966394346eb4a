#include "src/display/ToolPanel.h"

#include "platform/framework/Wait.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/machine/Machine.h"
#include "platform/qt/ScreenRectangle.h"
#include "platform/windows/MessageMap.h"
#include "src/display/FlightPath.h"
#include "src/resources/CommandIds.h"
#include "src/resources/MenuTable.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr UINT kFirstButton = 801;
constexpr CSize kButtonSize{23, 22};
constexpr int kPanelWidth = 144;
/// The height of the panel without its caption.
constexpr int kHeightBelowCaption = 28;

/// The end of the flight: the size of the rectangle, and its distance from the right edge of a window.
constexpr int kCornerSize = 20;
constexpr int kCornerDistance = 24;
constexpr COLORREF kFlightColour = RGB(0, 0, 128);
constexpr std::uint32_t kFrameMs = 20;

/// A button. Its name is that of a menu command.
struct Tool {
    UINT picture;
    UINT command;
};

constexpr std::array<Tool, 6> kTools = {{
    {IDB_TOOL_COPY, ID_EDIT_COPY},
    {IDB_TOOL_PASTE, ID_EDIT_PASTE},
    {IDB_TOOL_PRINT, ID_FILE_PRINT},
    {IDB_TOOL_BACK, ID_BACK},
    {IDB_TOOL_FORWARD, ID_FORWARD},
    {IDB_TOOL_SEARCH, ID_SEARCH},
}};

CRect corner(int right, int top) { return CRect::at(right - kCornerDistance, top, kCornerSize, kCornerSize); }

}  // namespace

const CRuntimeClass CToolPanel::runtimeClass{"CToolPanel"};

CToolPanel::CToolPanel() : CDialog(IDD_TOOL_PANEL) {}

const MessageMap* CToolPanel::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_CREATE, &CToolPanel::OnCreate>(),
        OnMessage<WM_CLOSE, &CToolPanel::AnimateHide>(),
        OnCommandId<&CToolPanel::OnCopy>(kFirstButton),
        OnCommandId<&CToolPanel::OnPaste>(kFirstButton + 1),
        OnCommandId<&CToolPanel::OnButton<ID_FILE_PRINT>>(kFirstButton + 2),
        OnCommandId<&CToolPanel::OnButton<ID_BACK>>(kFirstButton + 3),
        OnCommandId<&CToolPanel::OnButton<ID_FORWARD>>(kFirstButton + 4),
        OnCommandId<&CToolPanel::OnButton<ID_SEARCH>>(kFirstButton + 5),
    };
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

int CToolPanel::OnCreate(CREATESTRUCT& cs) {
    if (DefWindowProc(WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) == -1) return -1;
    int x = 0;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i].Create(CRect::at(x, 0, kButtonSize.cx, kButtonSize.cy), *this,
                            kFirstButton + static_cast<UINT>(i), kTools[i].picture,
                            MenuItemText(kTools[i].command));
        x += kButtonSize.cx;
    }
    return 0;
}

void CToolPanel::send(UINT command) {
    if (CWnd* const owner = GetParent()) owner->SendMessage(WM_COMMAND, command);
}

void CToolPanel::returnFocus() {
    if (CPictureButton::FocusReturn() != 0) platform::SetFocus(CPictureButton::FocusReturn());
}

void CToolPanel::OnCopy() {
    returnFocus();
    // Only the commands that suit what is shown are carried out.
    for (const UINT command :
         {ID_EDIT_COPY, ID_COPY_VIDEO, ID_COPY_MOLECULE, ID_COPY_ALL_DATA, ID_COPY_GRAPH}) {
        send(command);
    }
}

void CToolPanel::OnPaste() {
    returnFocus();
    send(ID_EDIT_PASTE);
}

/// The Enter key presses the button that has the focus.
void CToolPanel::OnOK() {
    for (const CPictureButton& button : m_buttons) {
        if (button.GetSafeHwnd() != GetFocus()) continue;
        SendMessage(WM_COMMAND, static_cast<WPARAM>(button.GetDlgCtrlID()));
        return;
    }
}

CRect CToolPanel::captionPlace() const {
    const CRect place = GetWindowRect();
    return CRect::at(place.left, place.top, place.Width(), machine().metric(SM_CYSMCAPTION));
}

void CToolPanel::ShowAtCorner(const CRect& panes) {
    MoveWindow(CRect::at(panes.right - kPanelWidth, panes.top, kPanelWidth,
                         machine().metric(SM_CYSMCAPTION) + kHeightBelowCaption));
    ShowWindow(SW_SHOW);
}

void CToolPanel::AnimateHide() {
    CWnd* const owner = GetParent();
    const CRect former = GetWindowRect();
    const CRect start = captionPlace();
    ShowWindow(SW_HIDE);
    if (!owner) return;
    owner->SendMessage(WM_PAINT);
    const CRect around = owner->GetWindowRect();
    const int below = machine().metric(SM_CYCAPTION) + machine().metric(SM_CYMENU);
    ScreenRectangle flying(kFlightColour);
    for (const CRect& frame : FlightPath(start, corner(around.right, around.top + below))) {
        if (Overlap(frame, former)) continue;
        flying.Show(frame);
        platform::Sleep(kFrameMs);
    }
}

void CToolPanel::AnimateShow(const CRect& view) {
    {
        ScreenRectangle flying(kFlightColour);
        for (const CRect& frame : FlightPath(corner(view.right, view.top), captionPlace())) {
            flying.Show(frame);
            platform::Sleep(kFrameMs);
        }
    }
    ShowWindow(SW_SHOW);
}

}  // namespace kalyxo
