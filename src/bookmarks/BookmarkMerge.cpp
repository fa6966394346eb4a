#include "src/bookmarks/BookmarkMerge.h"

#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "platform/base/Archive.h"

namespace kalyxo {

namespace {

struct Folder {
    std::unique_ptr<CBookmark> record;
    BookmarkArray bookmarks;
};
using Folders = std::vector<Folder>;
using Keys = std::set<std::string>;

/// What makes a record the same as another: the name of its folder, and all that the file holds of it.
std::string keyOf(std::string_view folderName, CBookmark& record) {
    platform::CArchive archive;
    archive.StoreObject(record);
    return std::to_string(folderName.size()).append(":").append(folderName) + archive.Stored();
}

Keys keysOf(const BookmarkArray& records) {
    Keys keys;
    std::string_view folderName;
    for (const auto& record : records) {
        if (IsFolder(*record)) folderName = record->name;
        keys.insert(keyOf(folderName, *record));
    }
    return keys;
}

Folders inFolders(BookmarkArray records) {
    Folders folders;
    for (auto& record : records) {
        if (IsFolder(*record)) {
            folders.push_back({std::move(record), {}});
        } else {
            folders.back().bookmarks.push_back(std::move(record));
        }
    }
    return folders;
}

BookmarkArray inOneRow(Folders folders) {
    BookmarkArray records;
    for (Folder& folder : folders) {
        records.push_back(std::move(folder.record));
        std::ranges::move(folder.bookmarks, std::back_inserter(records));
    }
    return records;
}

/// Takes away what they deleted. A folder goes only when nothing is left in it.
void removeDeleted(Folders& folders, const Keys& before, const Keys& theirs) {
    const auto deleted = [&](std::string_view folderName, CBookmark& record) {
        const std::string key = keyOf(folderName, record);
        return before.contains(key) && !theirs.contains(key);
    };
    std::erase_if(folders, [&](Folder& folder) {
        const std::string& name = folder.record->name;
        std::erase_if(folder.bookmarks, [&](const auto& record) { return deleted(name, *record); });
        return folder.bookmarks.empty() && deleted(name, *folder.record);
    });
}

Folder* folderOfName(Folders& folders, std::string_view name) {
    const auto found =
        std::ranges::find_if(folders, [name](const Folder& folder) { return folder.record->name == name; });
    return found == folders.end() ? nullptr : &*found;
}

/// Adds what is in neither set of keys. A folder that we deleted comes back only with something new in it.
void addNew(Folders& folders, Folder added, const Keys& before, const Keys& ours) {
    const std::string name = added.record->name;
    const auto isKnown = [&](CBookmark& record) {
        const std::string key = keyOf(name, record);
        return before.contains(key) || ours.contains(key);
    };
    std::erase_if(added.bookmarks, [&](const auto& record) { return isKnown(*record); });
    if (Folder* const folder = folderOfName(folders, name)) {
        std::ranges::move(added.bookmarks, std::back_inserter(folder->bookmarks));
    } else if (!added.bookmarks.empty() || !isKnown(*added.record)) {
        folders.push_back(std::move(added));
    }
}

bool areSame(const BookmarkArray& first, const BookmarkArray& second) {
    return std::ranges::equal(first, second,
                              [](const auto& a, const auto& b) { return keyOf({}, *a) == keyOf({}, *b); });
}

}  // namespace

BookmarkArray MergeBookmarks(const BookmarkArray& before, BookmarkArray theirs, BookmarkArray ours) {
    if (areSame(before, ours)) return theirs;
    const Keys beforeKeys = keysOf(before);
    const Keys theirKeys = keysOf(theirs);
    const Keys ourKeys = keysOf(ours);
    Folders folders = inFolders(std::move(ours));
    removeDeleted(folders, beforeKeys, theirKeys);
    for (Folder& folder : inFolders(std::move(theirs)))
        addNew(folders, std::move(folder), beforeKeys, ourKeys);
    return inOneRow(std::move(folders));
}

}  // namespace kalyxo
