#pragma once

#include "src/components/HostedComponents.h"
#include "src/display/SplitterBar.h"
#include "src/pages/PagePresenter.h"
#include "src/view/ContentHost.h"

namespace kalyxo {

/// What lies below the section bar: the mode, and the panes that it shows.
class ContentPanes {
  public:
    ContentPanes(platform::CWnd& view, HostedComponents& components, PagePresenter& pages)
        : m_view(view), m_components(components), m_pages(pages) {}

    ContentMode Mode() const { return m_mode; }
    /// Hides what the former mode shows; false when this is the mode already.
    bool EnterMode(ContentMode mode);

    /// Lays out the panes of page mode, which has just been entered, and shows them.
    void LayOutPage();
    /// Lays out the one component of the mode, and shows it.
    void ShowWhole(platform::CWnd& component);
    /// Gives the keyboard's focus to the component that `ShowWhole` has shown, so that what is typed after a
    /// click in the bar reaches it; nothing in other modes.
    void FocusWhole();
    /// The view has this size now. The panes of page mode follow at the next paint.
    void Resize(platform::CSize client);
    /// Paints what the panes leave free; the view is in a mode with panes.
    void Paint(platform::CDC& dc);
    /// Lays out the panes of page mode beside the splitter, and keeps its place for the next start.
    void SplitterMoved();

    platform::HWND Splitter() const { return m_splitter.GetSafeHwnd(); }

  private:
    void leaveMode();
    void limitSplitter(int max);
    void placePanes();
    platform::CSize clientSize() const;

    platform::CWnd& m_view;
    HostedComponents& m_components;
    PagePresenter& m_pages;
    CSplitterBar m_splitter;
    ContentMode m_mode = ContentMode::MainMenu;
    bool m_bLayoutPending = false;
    /// Where the bar stood before a window that became narrow pulled it to the left; 0 when it did not.
    int m_nPulledFrom = 0;
};

}  // namespace kalyxo
