#pragma once

#include "src/bookmarks/BookmarkList.h"

namespace kalyxo {

/// The bookmarks that two programs leave when both began with `before`, one saved `theirs` and this one has
/// `ours`. What either added is there, what either deleted is gone, in our order; what they added stands at
/// the end of the folder of its name. A bookmark counts as the same when its folder's name and the whole
/// record are the same. Where we changed nothing, theirs stay as they are.
BookmarkArray MergeBookmarks(const BookmarkArray& before, BookmarkArray theirs, BookmarkArray ours);

}  // namespace kalyxo
