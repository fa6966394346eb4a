#pragma once

#include <cstdint>

namespace kalyxo {

class CBMDataAn;

/// What the view shows below the section bar.
enum class ContentMode { MainMenu = 0, PeriodicTable = 1, Page = 2, DataAnalyser = 8 };

/// What navigation and bookmarks ask of the window: to show the place that they have decided on.
class ContentHost {
  public:
    /// Changes to page mode and gives the browse selection a section. True when the panes are still to be
    /// laid out, false in page mode, whose panes stand already.
    virtual bool EnterPageMode(std::int16_t sectionCode) = 0;
    virtual void LayOutPage() = 0;
    /// Prepares a content page and has the browser show it, scrolled down by `scrolled` of the page's own
    /// units.
    virtual void ShowPage(std::int32_t pageNumber, double scrolled) = 0;
    /// How far the page shown last is scrolled down, or was when page mode was left.
    virtual double Scrolled() const = 0;
    /// Has the browse selection show a topic or one of its entries. It answers with the number of the page.
    virtual void ShowItem(std::int32_t pageId, std::int32_t itemCode) = 0;
    virtual void ShowPeriodicTable() = 0;
    /// With a bookmark, the data analyser takes its state; without one it keeps its own.
    virtual void ShowDataAnalyser(const CBMDataAn* bookmark) = 0;

  protected:
    ~ContentHost() = default;
};

}  // namespace kalyxo
