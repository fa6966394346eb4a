#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
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

/// Limits that no user's file meets, since records are made one by one; beyond them a file counts as damaged.
inline constexpr std::size_t kMaxBookmarkBytes = std::size_t{16} * 1024 * 1024;
inline constexpr std::size_t kMaxBookmarks = 0x20000;

enum class BookmarkLoad { loaded, noFile, damaged };        ///< how loading ended
enum class BookmarkSave { saved, notCreated, notWritten };  ///< how saving ended

/// The bookmark file during one run of the program, which reads it at its start and writes it at its end.
/// Several programs on one machine may do so.
class BookmarkFile {
  public:
    /// The file by DOS path, and the folder (host path) that all programs lock while they write it. `files`
    /// must outlive the object.
    BookmarkFile(const platform::FileSystem& files, std::string path, std::filesystem::path lockFolder);

    /// Gives the list the bookmarks of the file, or the default folder when there is none or it is damaged.
    /// The file stays as it is.
    BookmarkLoad Load(BookmarkList& list);

    /// Writes the file anew, in its place, and creates the folders of its path. Where another program has
    /// written it since it was loaded, what that one added and deleted is merged in. Before, a whole file is
    /// copied to the same name with ".bak" behind it, a damaged one gets a name with ".damaged" behind it,
    /// and the copy from before the damage is copied to that name with ".bak" behind it; with a number where
    /// the name is taken. It does not matter whether that succeeds. `notCreated` leaves a whole file as it
    /// was, and so does `notWritten` when the disk is full; otherwise it may leave a part.
    BookmarkSave Save(const BookmarkArray& records) const;

  private:
    std::string mergedBytes(BookmarkArray theirs, const std::string& ours) const;
    void deleteHalfFiles() const;
    bool isNew() const;
    void keepCopy(const std::string& bytes) const;
    void keepDamaged() const;
    std::string firstName(std::string_view ending,
                          const std::function<bool(const std::string&)>& mayTake) const;

    const platform::FileSystem& m_files;
    std::string m_path;
    std::filesystem::path m_lockFolder;
    std::optional<std::string> m_loaded;  ///< the bytes of the file when it was loaded
};

}  // namespace kalyxo
