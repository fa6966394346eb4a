#pragma once

#include <memory>
#include <optional>
#include <string>

#include "src/bookmarks/BookmarkFile.h"
#include "src/bookmarks/BookmarkList.h"
#include "src/components/HostedComponents.h"
#include "src/view/Navigator.h"

namespace kalyxo {

/// The user's bookmarks and the two commands for them: Add records what is on show, Go brings it back.
class BookmarkCommands {
  public:
    BookmarkCommands(HostedComponents& components, Navigator& navigator, ContentHost& host)
        : m_components(components), m_navigator(navigator), m_host(host) {}

    const BookmarkList& Bookmarks() const { return m_bookmarks; }
    /// Both tell the user of a failure.
    void LoadBookmarks();
    void SaveBookmarks();

    /// Asks the user for the name of a bookmark, and adds it. `mode` is not the main menu.
    void OnBookmarkAdd(ContentMode mode);
    void OnBookmarkGoto();

    std::string ProposedName(ContentMode mode);
    std::unique_ptr<CBookmark> MakeBookmark(ContentMode mode, const std::string& name);
    void Open(const CBookmark& bookmark);

  private:
    std::unique_ptr<CBookmark> MakeBrowseBookmark() const;
    std::unique_ptr<CBookmark> MakePeriodicBookmark();
    std::unique_ptr<CBookmark> MakeDataAnBookmark();
    std::string pageTitle();
    void openPage(const PageAddress& place);

    HostedComponents& m_components;
    Navigator& m_navigator;
    ContentHost& m_host;
    BookmarkList m_bookmarks;
    std::optional<BookmarkFile> m_file;  ///< once the bookmarks are loaded
};

}  // namespace kalyxo
