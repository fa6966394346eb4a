#pragma once

#include <memory>
#include <vector>

#include "platform/windows/Wnd.h"

namespace platform {

class CDocument;
class CView;
struct CRuntimeClass;

/// Control id of the view inside its frame.
inline constexpr UINT AFX_IDW_PANE_FIRST = 0xE900;

/// The state of a menu item when its menu is opened.
struct MenuItemState {
    std::string_view text;  ///< empty for a separator
    UINT id = 0;
    bool enabled = false;
    bool checked = false;
};

/// The top-level window of a single-document program: menu bar, accelerators and the view.
class CFrameWnd : public CWnd {
  public:
    CFrameWnd();
    ~CFrameWnd() override;
    const MessageMap* GetMessageMap() const override;

    /// Creates the window, hidden, with menu, accelerators and a view of the given class.
    bool LoadFrame(const CRuntimeClass& viewClass, CDocument& document);
    /// Runs the view's first update, then shows the frame with the application's show command.
    void InitialUpdateFrame();

    /// Has the frame cover the whole screen, or takes it back to where it was before.
    void ToggleFullScreen();
    bool IsFullScreen() const;

    CView* GetActiveView() const { return view_.get(); }

    /// Changes style, position and size before the window is made; false refuses.
    virtual bool PreCreateWindow(CREATESTRUCT& cs);
    virtual void ActivateFrame(int showCommand);

    /// Routes commands to the view and its document, then to the frame, then to the application.
    bool OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) override;
    /// Carries out a command if its update handler allows it; whether it was carried out.
    bool RunCommand(UINT id);
    /// The state of a command after its update handler has run. A command without any handler is disabled.
    CCmdUI UpdateCommand(UINT id);
    /// The items of the menu with this index, after their update handlers have run.
    std::vector<MenuItemState> MenuState(std::size_t menu);

  protected:
    int OnCreate(CREATESTRUCT& cs);
    void OnSize(UINT type, int width, int height);
    void OnClose();
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;

  private:
    void OnAppExit();
    std::unique_ptr<CView> view_;
    const CRuntimeClass* viewClass_ = nullptr;
    CDocument* document_ = nullptr;
};

}  // namespace platform
