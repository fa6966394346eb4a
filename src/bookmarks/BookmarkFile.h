#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/FileSystem.h"
#include "src/bookmarks/BookmarkList.h"

/// The bookmark file; docs/formats/bookmarks.md has its bytes.
namespace kalyxo {

/// The records that the bytes of a file hold, at least one; nothing when they are damaged: another version, a
/// length or count that cannot be, a record that is unknown, missing, or outside every folder. Bytes behind
/// the last record do not matter.
std::optional<BookmarkArray> ReadBookmarks(std::string_view bytes);
/// The bytes of a file.
std::string WriteBookmarks(const BookmarkArray& records);

/// The largest file that is read, which holds more than a million bookmarks; a larger one counts as damaged.
inline constexpr std::size_t kLargestBookmarkFile = std::size_t{64} * 1024 * 1024;

enum class BookmarkLoad { loaded, noFile, damaged };
enum class BookmarkSave { saved, notCreated, notWritten };

/// Gives the list the bookmarks of a file by DOS path, or the default folder when there is none or it is
/// damaged. The file stays as it is.
BookmarkLoad LoadBookmarks(const platform::FileSystem& files, std::string_view path, BookmarkList& list);

/// Writes the file by DOS path anew, in its place, and creates the folders of the path. A file that was there
/// is copied to the same name with ".bak" behind it; it does not matter whether that succeeds. `notCreated`
/// leaves the file as it was, `notWritten` a part of it.
BookmarkSave SaveBookmarks(const platform::FileSystem& files, std::string_view path,
                           const BookmarkArray& records);

/// Creates the folders named in a file path; those that are there already stay.
void CreatePathFolders(const platform::FileSystem& files, std::string_view path);

}  // namespace kalyxo
