#include "src/pages/PagePresenter.h"

#include <utility>

#include "formats/PageNumber.h"
#include "platform/base/Resources.h"
#include "platform/browser/BrowserPolicy.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/Progress.h"
#include "platform/machine/Machine.h"
#include "platform/plugins/PluginTypes.h"
#include "platform/windows/ChildWindows.h"
#include "src/pages/MoleculeCopy.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

using namespace platform;

namespace {

/// Where the browser waits while no page is shown, to the left of the view's client area.
constexpr CRect kBrowserParked = CRect::at(-800, 0, 400, 200);

}  // namespace

void PagePresenter::ReadyBrowser() {
    BrowserPolicy::instance().setAllowedFolders({TheApp().m_strDataFolder});
    BrowserPolicy::instance().setAllowedHosts({machine().sites().product, machine().sites().maker});
    PluginTypes& types = PluginTypes::instance();
    for (const char* video : {"webm", "mp4", "m4v", "ogv", "avi", "mov", "mpg", "mpeg"}) {
        types.add(video, ":/plugins/video.html");
    }
    for (const std::string_view molecule : kMoleculeEndings) types.add(molecule, ":/plugins/molecule.html");
}

void PagePresenter::OpenCache(CacheLocation location) {
    m_cache.Open(std::move(location));
    BrowserPolicy::instance().setAllowedFolders({TheApp().m_strDataFolder, m_cache.Folder()});
    m_preparer.emplace(m_files, TheApp().m_strDataFolder, m_cache.Folder());
}

void PagePresenter::ShowPage(std::int32_t pageNumber, double scrolled) {
    if (!m_preparer) return;
    const std::string file = formats::pagePath(pageNumber).value_or(std::to_string(pageNumber));
    const std::string source = TheApp().m_strDataFolder + file;
    const std::string target = m_cache.NextTarget();
    tellFailure(PreparePage(*m_preparer, source, target), source);
    ShowPreparedPage(target, scrolled);
}

double PagePresenter::Scrolled() const {
    if (m_scrolledWhenLeft) return *m_scrolledWhenLeft;
    const PageTools* const page = tools();
    return page == nullptr ? 0 : page->scrolled();
}

void PagePresenter::PointAtLink() {
    if (PageTools* const page = tools()) page->pointAtLink();
}

void PagePresenter::FindInPage() {
    if (PageTools* const page = tools()) page->openFind();
}

int PagePresenter::TextSize() const {
    const PageTools* const page = tools();
    return page == nullptr ? TheApp().m_nTextSize : page->textSize();
}

void PagePresenter::SetTextSize(int percent) {
    if (PageTools* const page = tools()) page->setTextSize(percent);
}

PageTools* PagePresenter::tools() const { return PageToolsIn(m_browser.GetSafeHwnd()); }

void PagePresenter::LeavePage() {
    m_scrolledWhenLeft = Scrolled();
    if (PageTools* const page = tools()) page->closeFind();
    m_browser.MoveWindow(kBrowserParked);
    m_contents = {};
}

PrepareResult PagePresenter::PreparePage(const PagePreparer& preparer, const std::string& source,
                                         const std::string& target) {
    CProgress progress(LoadString(IDS_PREPARING_PAGE));
    const PrepareResult result = preparer.PreparePage(source, target, m_contents, progress.Step());
    if (result == PrepareResult::prepared) TheApp().m_strLastPreparedPage = target;
    return result;
}

void PagePresenter::tellFailure(PrepareResult result, const std::string& source) {
    if (result == PrepareResult::noSource) {
        AfxMessageBox(std::string(LoadString(IDS_PAGE_NOT_OPENED)).append(source));
    } else if (result == PrepareResult::noTarget) {
        AfxMessageBox(LoadString(IDS_PAGE_NOT_CREATED));
    }
}

void PagePresenter::ShowPreparedPage(const std::string& target, double scrolled) {
    m_scrolledWhenLeft.reset();
    if (PageTools* const page = tools()) page->beginNextPage({scrolled, m_marked});
    const std::string redirect = m_contents.video ? m_cache.WriteRedirect(target) : std::string();
    m_browser.Navigate(redirect.empty() ? target : redirect, Variant(CWebBrowser::kNoHistoryNoCache));
    m_cache.CleanCache(false);
}

}  // namespace kalyxo
