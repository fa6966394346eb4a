#pragma once

#include "src/components/DataAnal.h"
#include "src/view/ContentPanes.h"
#include "src/view/Navigator.h"

namespace kalyxo {

/// Which commands are enabled, and which are checked, as things stand.
class CommandRules {
  public:
    CommandRules(const ContentPanes& panes, const Navigator& navigator, const PageContents& contents,
                 CDataAnal& dataAnalyser)
        : m_panes(panes), m_navigator(navigator), m_contents(contents), m_dataAnalyser(dataAnalyser) {}

    // Enabled
    bool Print() const { return shows(ContentMode::Page) || analyserShowsGraph(); }
    bool CutAndPaste() const;
    bool Copy() const { return shows(ContentMode::Page); }
    bool FindInPage() const { return shows(ContentMode::Page); }
    bool Molecule() const { return m_contents.molecule; }
    bool Video() const { return m_contents.video; }
    bool CopyAllData() const { return shows(ContentMode::DataAnalyser); }
    bool CopySelected() const { return shows(ContentMode::DataAnalyser) && !analyserShowsGraph(); }
    bool CopyGraph() const { return analyserShowsGraph(); }
    bool Back() const { return m_navigator.Places().CanGoBack(); }
    bool Forward() const { return m_navigator.Places().CanGoForward(); }
    bool BookmarkAdd() const;

    // Checked
    bool Section(std::int16_t code) const;
    bool PeriodicTable() const { return shows(ContentMode::PeriodicTable); }
    bool DataAnalyser() const { return shows(ContentMode::DataAnalyser); }

  private:
    bool shows(ContentMode mode) const { return m_panes.Mode() == mode; }
    /// The analyser is asked only while it is on show.
    bool analyserShowsGraph() const {
        return shows(ContentMode::DataAnalyser) && m_dataAnalyser.GetViewMode() != 0;
    }

    const ContentPanes& m_panes;
    const Navigator& m_navigator;
    const PageContents& m_contents;
    CDataAnal& m_dataAnalyser;
};

}  // namespace kalyxo
