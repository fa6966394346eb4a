#include "src/bookmarks/BookmarkFile.h"

#include <array>
#include <new>
#include <span>
#include <system_error>
#include <utility>

#include "platform/base/Archive.h"
#include "platform/files/BinaryFile.h"
#include "platform/files/FolderLock.h"
#include "platform/files/ReplaceFile.h"
#include "src/bookmarks/BookmarkMerge.h"

namespace kalyxo {

using platform::BinaryFile;
using platform::CArchive;
using platform::FileHandle;
using platform::FileSystem;

namespace {

constexpr std::uint32_t kVersion = 1;
/// The tag of a class that came before, and the length of an empty name.
constexpr std::size_t kMinRecordBytes = 3;

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
    if (file.size() > kMaxBookmarkBytes) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    if (file.read(std::as_writable_bytes(std::span(bytes))) != bytes.size()) return std::nullopt;
    return bytes;
}

/// A bookmark file as it is on disk.
struct FileOnDisk {
    bool exists = false;  ///< and can be opened
    std::string bytes;
    std::optional<BookmarkArray> records;  ///< nothing when the file is damaged
};

FileOnDisk readFile(const FileSystem& files, std::string_view path) {
    // By host path: the user's own file may be a link, even where it lies in the data folder.
    const auto native = files.nativePath(path);
    std::optional<BinaryFile> file = native ? BinaryFile::open(*native) : std::nullopt;
    if (!file) return {};
    try {
        std::optional<std::string> bytes = readWhole(*file);
        if (!bytes) return {true, {}, std::nullopt};
        auto records = ReadBookmarks(*bytes);
        return {true, std::move(*bytes), std::move(records)};
    } catch (const std::bad_alloc&) {
        return {true, {}, std::nullopt};
    }
}

/// Creates the folders named in a file path; those that are there already stay.
void CreatePathFolders(const FileSystem& files, std::string_view path) {
    const std::size_t root = path.find('\\');
    if (root == path.npos) return;
    for (std::size_t end = path.find('\\', root + 1); end != path.npos; end = path.find('\\', end + 1)) {
        files.createFolder(path.substr(0, end));
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
        elements > kMaxBookmarks || elements > archive.Remaining() / kMinRecordBytes) {
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

BookmarkFile::BookmarkFile(const FileSystem& files, std::string path, std::filesystem::path lockFolder)
    : m_files(files), m_path(std::move(path)), m_lockFolder(std::move(lockFolder)) {}

BookmarkLoad BookmarkFile::Load(BookmarkList& list) {
    FileOnDisk file = readFile(m_files, m_path);
    if (!file.records) {
        list.ResetBookmarks();
        return file.exists ? BookmarkLoad::damaged : BookmarkLoad::noFile;
    }
    list.Replace(std::move(*file.records));
    m_loaded = std::move(file.bytes);
    return BookmarkLoad::loaded;
}

BookmarkSave BookmarkFile::Save(const BookmarkArray& records) const {
    const auto lock = platform::FolderLock::wait(m_lockFolder);
    CreatePathFolders(m_files, m_path);
    deleteHalfFiles();
    std::string bytes = WriteBookmarks(records);
    FileOnDisk present = readFile(m_files, m_path);
    if (present.records) {
        keepCopy(present.bytes);
        if (present.bytes != m_loaded) bytes = mergedBytes(std::move(*present.records), bytes);
    } else if (present.exists) {
        keepDamaged();
    }
    // A new file appears whole: after an end by force before its first byte it would count as damaged.
    if (isNew() && platform::replaceFile(m_files, m_path, bytes)) return BookmarkSave::saved;
    const auto native = m_files.nativePath(m_path);
    FileHandle file = native ? FileHandle::openForOverwriting(*native) : FileHandle();
    if (!file) return BookmarkSave::notCreated;
    const bool written = file.overwrite(bytes);
    return file.close() && written ? BookmarkSave::saved : BookmarkSave::notWritten;
}

std::string BookmarkFile::mergedBytes(BookmarkArray theirs, const std::string& ours) const {
    auto records = ReadBookmarks(ours);
    if (!records) return ours;
    auto before = m_loaded ? ReadBookmarks(*m_loaded) : std::nullopt;
    if (!before) before = DefaultBookmarks();
    const BookmarkArray merged = MergeBookmarks(*before, std::move(theirs), std::move(*records));
    return merged.empty() ? ours : WriteBookmarks(merged);
}

/// Those of a program that was ended by force.
void BookmarkFile::deleteHalfFiles() const {
    if (const auto native = m_files.nativePath(m_path))
        platform::deleteHalves(native->parent_path(), native->filename().string());
}

/// Nothing has its name, not even a link that leads nowhere.
bool BookmarkFile::isNew() const {
    const auto native = m_files.nativePath(m_path);
    std::error_code ignored;
    return native &&
           std::filesystem::symlink_status(*native, ignored).type() == std::filesystem::file_type::not_found;
}

void BookmarkFile::keepCopy(const std::string& bytes) const {
    const std::string name = firstName(".bak", [&](const std::string& candidate) {
        return !m_files.exists(candidate) || readFile(m_files, candidate).records;
    });
    platform::replaceFile(m_files, name, bytes);
}

void BookmarkFile::keepDamaged() const {
    const std::string name =
        firstName(".damaged", [&](const std::string& candidate) { return !m_files.exists(candidate); });
    m_files.moveFile(m_path, name);
    // The next saves copy other bookmarks over the copy from before the damage.
    m_files.copyFile(m_path + ".bak", name + ".bak");
}

std::string BookmarkFile::firstName(std::string_view ending,
                                    const std::function<bool(const std::string&)>& mayTake) const {
    std::string name = m_path + std::string(ending);
    for (int number = 2; !mayTake(name); ++number)
        name = m_path + std::string(ending) + std::to_string(number);
    return name;
}

}  // namespace kalyxo
