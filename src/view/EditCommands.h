#pragma once

#include "src/components/HostedComponents.h"
#include "src/view/ContentPanes.h"
#include "src/view/Navigator.h"
#include "src/view/PictureCapture.h"

namespace kalyxo {

/// Whether keys go to the browse selection's text field.
bool FocusIsInSelectEdit();

/// The commands for the clipboard and the printer. Each goes to the component that it is about.
class EditCommands {
  public:
    EditCommands(HostedComponents& components, const ContentPanes& panes, const Navigator& navigator)
        : m_components(components), m_panes(panes), m_navigator(navigator) {}

    void Cut();
    void CopyToClipboard();
    void Paste();
    void Print();

    void CopyMolecule() { pictures().CaptureMolecule(CaptureMode::copy); }
    void CopyVideo() { pictures().CaptureVideo(CaptureMode::copy); }
    void PrintMolecule() { pictures().CaptureMolecule(CaptureMode::print, title()); }
    void PrintVideo() { pictures().CaptureVideo(CaptureMode::print, title()); }

    void CopyAllData() { m_components.dataAnalyser.CopyAllData(); }
    void CopySelected() { m_components.dataAnalyser.CopySelection(); }
    void CopyGraph() { m_components.dataAnalyser.CopyGraph(); }

  private:
    PictureCapture pictures() const { return PictureCapture(m_components.browser.GetSafeHwnd()); }
    std::string title() { return m_components.select.GetItemTitle(m_navigator.Address().itemCode); }
    void execInDocument(std::int32_t command);

    HostedComponents& m_components;
    const ContentPanes& m_panes;
    const Navigator& m_navigator;
};

}  // namespace kalyxo
