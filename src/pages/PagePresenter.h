#pragma once

#include <optional>

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

    /// Shows the page with a number; a number that names no file is reported like a page that is missing.
    void ShowPage(std::int32_t pageNumber);
    /// What the page shown last holds.
    const PageContents& Contents() const { return m_contents; }
    /// Moves the browser out of sight.
    void LeavePage();

    const PageCache& Cache() const { return m_cache; }
    /// Deletes everything that was written.
    void CleanCache() { m_cache.CleanCache(true); }

  private:
    PrepareResult PreparePage(const PagePreparer& preparer, const std::string& source,
                              const std::string& target);
    static void tellFailure(PrepareResult result, const std::string& source);
    void ShowPreparedPage(const std::string& target);

    const platform::FileSystem& m_files;
    PageCache m_cache;
    CWebBrowser& m_browser;
    std::optional<PagePreparer> m_preparer;
    PageContents m_contents;
};

}  // namespace kalyxo
