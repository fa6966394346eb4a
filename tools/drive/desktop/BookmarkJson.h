#pragma once

#include "src/bookmarks/BookmarkList.h"
#include "tools/drive/script/Json.h"

namespace drive {

/// The records of the list in order, each with its class and its fields.
Json bookmarksJson(const kalyxo::BookmarkList& list);

}  // namespace drive
