#pragma once

#include "platform/windows/Cursor.h"
#include "platform/windows/Wnd.h"
#include "src/view/ContentPanes.h"
#include "src/view/KeyboardChoice.h"
#include "src/view/MainMenuScreen.h"
#include "src/view/SectionBar.h"

namespace kalyxo {

/// What the view draws and the user can open: the slots of the section bar and, in main-menu mode, the hot
/// areas of its picture. One of them is hot: it follows the pointer, or the arrow keys until the pointer
/// moves.
class HotItems {
  public:
    HotItems(platform::CWnd& view, const ContentPanes& panes);

    const SectionBar& Bar() const { return m_bar; }
    const MainMenuScreen& Menu() const { return m_menu; }
    void LoadPictures(const platform::FileSystem& files, std::string_view folder,
                      const MainMenuScreen::Report& report) {
        m_menu.LoadPictures(files, folder, report);
    }

    void DrawBar(platform::CDC& dc) const { m_bar.DrawBar(dc); }
    /// Draws the bar and the main menu, without a hot area.
    void PaintMainMenu(platform::CDC& dc);
    /// The same, and the area that is hot.
    void Draw(platform::CDC& dc);
    /// The view has this width now. Until the next paint there is no hot area.
    void Resize(int width);
    /// Selects a slot and draws what changes.
    void SelectSlot(int slot);
    void ClearHotItem() { m_menu.ClearHotItem(); }

    /// Makes hot what lies at a point of the view, unless a key's choice stands.
    void FollowPointer(platform::CPoint point);
    /// The slot of the item at a point that is clicked, −1 when there is none.
    int SlotClicked(platform::CPoint point);
    /// Shows the hand over an item that can be opened; false over anything else.
    bool ShowHand() const;

    /// Goes on to the next item in the direction of an arrow key.
    void ChooseByArrow(platform::UINT key);
    /// Goes on between the main menu and the bar; false where there is only the bar.
    bool ChooseByTab();
    /// Ends the keys' choice, and gives the slot of the item chosen; −1 when there was none.
    int TakeChosenSlot();
    /// Ends the keys' choice; what is under the pointer is hot again.
    void EndChoice();

    std::vector<platform::DrawnPart> Parts() const;

  private:
    /// Hovers the slot at a point; true when there is none.
    bool HitTestBar(platform::CPoint point);
    void hoverMainMenu(int item);
    void choose(int item);
    bool isUnder(platform::CPoint point) const;
    OpenableItems items() const;
    int hotItem() const;

    platform::CWnd& m_view;
    const ContentPanes& m_panes;
    SectionBar m_bar;
    MainMenuScreen m_menu;
    KeyboardChoice m_keyboard;
    platform::CCursor m_handCursor;
};

}  // namespace kalyxo
