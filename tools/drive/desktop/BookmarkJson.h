#pragma once

#include "src/bookmarks/BookmarkList.h"
#include "tools/drive/script/Json.h"

namespace drive {

/// The records of a list in their order, each with its class and its fields by their names.
Json bookmarksJson(const kalyxo::BookmarkList& list);

}  // namespace drive
