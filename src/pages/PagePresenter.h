#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/components/PageTools.h"
#include "src/components/WebBrowser.h"
#include "src/pages/PageCache.h"
#include "src/pages/PagePreparer.h"

namespace kalyxo {

/// Shows content pages: prepares each in the cache folder and leads the browser to it.
class PagePresenter {
  public:
    PagePresenter(const platform::FileSystem& files, CWebBrowser& browser)
        : m_files(files), m_cache(files), m_browser(browser) {}

    /// Settles what pages may reach, and how what they embed is shown. To be called before the browser is
    /// made.
    static void ReadyBrowser();
    /// Readies the cache folder. Before that no page is shown.
    void OpenCache(CacheLocation location);

    /// Shows the page with a number; a number that names no file is reported like a page that is missing. The
    /// page begins scrolled down by `scrolled` of its own units.
    void ShowPage(std::int32_t pageNumber, double scrolled);
    /// Moves the pointer to the link that the user has just followed by a key.
    void PointAtLink();
    /// Opens the strip in which the user looks for a text in the page.
    void FindInPage();
    /// Words that are marked in the pages shown from now on.
    void MarkWords(std::vector<std::string> words) { m_marked = std::move(words); }
    /// The size of the text of pages, in percent.
    int TextSize() const;
    void SetTextSize(int percent);
    /// How far the page is scrolled down, or was when it was left.
    double Scrolled() const;
    /// What the page shown last holds.
    const PageContents& Contents() const { return m_contents; }
    /// Moves the browser out of sight.
    void LeavePage();

    const PageCache& Cache() const { return m_cache; }
    /// Deletes everything that was written.
    void CleanCache() { m_cache.CleanCache(true); }

  private:
    platform::PageTools* tools() const;
    PrepareResult PreparePage(const PagePreparer& preparer, const std::string& source,
                              const std::string& target);
    static void tellFailure(PrepareResult result, const std::string& source);
    void ShowPreparedPage(const std::string& target, double scrolled);

    const platform::FileSystem& m_files;
    PageCache m_cache;
    CWebBrowser& m_browser;
    std::optional<PagePreparer> m_preparer;
    PageContents m_contents;
    std::vector<std::string> m_marked;
    /// Set while the page is out of sight, where it takes another shape.
    std::optional<double> m_scrolledWhenLeft;
};

}  // namespace kalyxo
