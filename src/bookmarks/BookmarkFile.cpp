#include "src/bookmarks/BookmarkFile.h"

#include <array>
#include <new>
#include <span>

#include "platform/base/Archive.h"
#include "platform/files/BinaryFile.h"

namespace kalyxo {

using platform::BinaryFile;
using platform::CArchive;
using platform::FileHandle;
using platform::FileSystem;

namespace {

constexpr std::uint32_t kVersion = 1;
/// The tag of a class that came before, and the length of an empty name.
constexpr std::size_t kSmallestRecord = 3;

constexpr std::array kClasses = {&CBMFolder::runtimeClass, &CBMBrowse::runtimeClass,
                                 &CBMPeriodic::runtimeClass, &CBMDataAn::runtimeClass};

/// The next record; null when there is none that could follow those before it.
std::unique_ptr<CBookmark> loadRecord(CArchive& archive, bool first) {
    std::unique_ptr<platform::CObject> object = archive.LoadObject();
    std::unique_ptr<CBookmark> record(dynamic_cast<CBookmark*>(object.get()));
    if (record) (void)object.release();
    if (record && first && !IsFolder(*record)) return nullptr;
    return record;
}

std::optional<std::string> readWhole(BinaryFile& file) {
    if (file.size() > kLargestBookmarkFile) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    if (file.read(std::as_writable_bytes(std::span(bytes))) != bytes.size()) return std::nullopt;
    return bytes;
}

std::optional<BookmarkArray> load(BinaryFile& file) {
    try {
        const std::optional<std::string> bytes = readWhole(file);
        return bytes ? ReadBookmarks(*bytes) : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

}  // namespace

std::optional<BookmarkArray> ReadBookmarks(std::string_view bytes) {
    CArchive archive(bytes, kClasses);
    std::uint32_t version = 0;
    std::int32_t count = 0;
    archive.Exchange(version, count);
    const std::size_t elements = archive.LoadCount();
    if (archive.Failed() || version != kVersion || count < 1 || elements != static_cast<std::size_t>(count) ||
        elements > archive.Remaining() / kSmallestRecord) {
        return std::nullopt;
    }
    BookmarkArray records;
    records.reserve(elements);
    while (records.size() < elements) {
        std::unique_ptr<CBookmark> record = loadRecord(archive, records.empty());
        if (!record) return std::nullopt;
        records.push_back(std::move(record));
    }
    return records;
}

std::string WriteBookmarks(const BookmarkArray& records) {
    CArchive archive;
    std::uint32_t version = kVersion;
    auto count = static_cast<std::int32_t>(records.size());
    archive.Exchange(version, count);
    archive.StoreCount(records.size());
    for (const auto& record : records) archive.StoreObject(*record);
    return archive.Stored();
}

BookmarkLoad LoadBookmarks(const FileSystem& files, std::string_view path, BookmarkList& list) {
    // By host path: the user's own file may be a link, even where it lies in the data folder.
    const auto native = files.nativePath(path);
    std::optional<BinaryFile> file = native ? BinaryFile::open(*native) : std::nullopt;
    std::optional<BookmarkArray> records = file ? load(*file) : std::nullopt;
    if (!records) {
        list.ResetBookmarks();
        return file ? BookmarkLoad::damaged : BookmarkLoad::noFile;
    }
    list.Replace(std::move(*records));
    return BookmarkLoad::loaded;
}

BookmarkSave SaveBookmarks(const FileSystem& files, std::string_view path, const BookmarkArray& records) {
    CreatePathFolders(files, path);
    files.copyFile(path, std::string(path) + ".bak");
    FileHandle file = files.openForWriting(path);
    if (!file) return BookmarkSave::notCreated;
    const std::string bytes = WriteBookmarks(records);
    const bool written = file.write(bytes.data(), bytes.size());
    return file.close() && written ? BookmarkSave::saved : BookmarkSave::notWritten;
}

void CreatePathFolders(const FileSystem& files, std::string_view path) {
    const std::size_t root = path.find('\\');
    if (root == path.npos) return;
    for (std::size_t end = path.find('\\', root + 1); end != path.npos; end = path.find('\\', end + 1)) {
        files.createFolder(path.substr(0, end));
    }
}

}  // namespace kalyxo
