#include "platform/files/FileSystem.h"

#include <unistd.h>

#include <algorithm>
#include <system_error>

#include "platform/files/DosPath.h"
#include "platform/files/ReplaceFile.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

char upperLetter(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

/// Absolute, without `.`, `..` and a slash at the end.
std::string plainPath(const fs::path& path) {
    std::error_code ignored;
    std::string text = fs::absolute(path, ignored).lexically_normal().string();
    if (text.size() > 1 && text.back() == '/') text.pop_back();
    return text;
}

/// The part of `path` below `folder`, without a slash in front; nothing when it does not lie there.
std::optional<std::string_view> partBelow(std::string_view folder, std::string_view path) {
    if (!path.starts_with(folder)) return std::nullopt;
    std::string_view rest = path.substr(folder.size());
    if (folder.ends_with('/') || rest.empty()) return rest;
    if (rest.front() != '/') return std::nullopt;
    return rest.substr(1);
}

/// A host name in code page 1253; nothing when no DOS path can name it.
std::optional<std::string> dosName(std::string_view native) {
    if (native.find('\\') != native.npos) return std::nullopt;
    return fromUtf8Strict(native);
}

/// The DOS path of host names below a folder, whose own DOS path ends with a backslash.
std::optional<std::string> dosPathBelow(const std::string& root, std::string_view names) {
    auto below = dosName(names);
    if (!below) return std::nullopt;
    std::ranges::replace(*below, '/', '\\');
    return root + *below;
}

}  // namespace

void FileSystem::setDrives(std::vector<Drive> drives) {
    drives_ = std::move(drives);
    for (auto& drive : drives_) {
        drive.letter = upperLetter(drive.letter);
        drive.folder = plainPath(drive.folder);
    }
}

const Drive* FileSystem::findDrive(char letter) const {
    const auto found = std::ranges::find_if(
        drives_, [wanted = upperLetter(letter)](const Drive& drive) { return drive.letter == wanted; });
    return found == drives_.end() ? nullptr : &*found;
}

void FileSystem::setContentFolder(std::string_view dosPath) {
    const auto native = nativePath(dosPath);
    contentFolder_ = native ? std::optional(plainPath(*native)) : std::nullopt;
}

DriveType FileSystem::driveType(char letter) const {
    const Drive* drive = findDrive(letter);
    return drive ? drive->type : DriveType::noRoot;
}

void FileSystem::mount(std::string_view dosFolder, const fs::path& folder) {
    if (auto path = parseDosPath(dosFolder))
        mounts_.push_back(
            {path->letter, std::move(path->names), std::string(dosFolder) + '\\', plainPath(folder)});
}

const FileSystem::Mount* FileSystem::findMount(char letter, const std::vector<std::string>& names) const {
    const auto found = std::ranges::find_if(mounts_, [&](const Mount& mount) {
        return mount.letter == letter && mount.names.size() <= names.size() &&
               std::equal(mount.names.begin(), mount.names.end(), names.begin(), isSameButForCase);
    });
    return found == mounts_.end() ? nullptr : &*found;
}

std::optional<FileSystem::Place> FileSystem::locate(std::string_view dosPath) const {
    auto parsed = parseDosPath(dosPath);
    if (!parsed) return std::nullopt;
    auto& names = parsed->names;
    if (const Mount* const mount = findMount(parsed->letter, names)) {
        names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(mount->names.size()));
        return Place{mount->folder.native(), std::move(names)};
    }
    const Drive* const drive = findDrive(parsed->letter);
    if (!drive) return std::nullopt;
    return Place{drive->folder.native(), std::move(names)};
}

std::optional<fs::path> FileSystem::nativePath(std::string_view dosPath) const {
    const auto place = locate(dosPath);
    return place ? findNames(place->folder, place->names) : std::nullopt;
}

std::optional<std::string> FileSystem::dosPath(const fs::path& native) const {
    const std::string path = plainPath(native);
    for (const Mount& mount : mounts_) {
        if (const auto rest = partBelow(mount.folder.native(), path)) return dosPathBelow(mount.root, *rest);
    }
    const Drive* best = nullptr;
    std::string_view below;
    for (const auto& drive : drives_) {
        const auto rest = partBelow(drive.folder.native(), path);
        if (!rest || (best && best->folder.native().size() >= drive.folder.native().size())) continue;
        best = &drive;
        below = *rest;
    }
    if (!best) return std::nullopt;
    return dosPathBelow({best->letter, ':', '\\'}, below);
}

FileHandle FileSystem::openForReading(std::string_view dosPath) const {
    const auto place = locate(dosPath);
    if (!place) return {};
    const auto& [folder, names] = *place;
    if (auto file = openNative(joinNames(folder, names))) return file;
    const auto found = findNamesInAnyCase(folder, names);
    return found ? openNative(*found) : FileHandle();
}

FileHandle FileSystem::openNative(const std::string& path) const {
    const auto below = contentFolder_ ? partBelow(*contentFolder_, path) : std::nullopt;
    return below ? FileHandle::openBeneath(*contentFolder_, std::string(*below))
                 : FileHandle::openForReading(path);
}

FileHandle FileSystem::openForWriting(std::string_view dosPath) const {
    auto place = locate(dosPath);
    if (!place || place->names.empty()) return {};
    const std::string name = std::move(place->names.back());
    place->names.pop_back();

    const std::string exact = joinNames(place->folder, place->names);
    if (!written_.find(name) && written_.areOf(exact)) return createIn(exact, name);
    // Not created at once, since an existing file whose name differs in case only would be meant.
    if (auto file = FileHandle::openForWriting(joinName(exact, name), false)) return file;
    const auto folder = findFolder(place->folder, place->names);
    if (!folder || !written_.take(*folder)) return {};
    const auto known = written_.find(name);
    return known ? FileHandle::openForWriting(joinName(*folder, *known), false) : createIn(*folder, name);
}

/// Creates a file in the folder whose names `written_` holds.
FileHandle FileSystem::createIn(const std::string& folder, const std::string& name) const {
    auto file = FileHandle::openForWriting(joinName(folder, name), true);
    if (file) written_.add(name);
    return file;
}

bool FileSystem::exists(std::string_view dosPath) const {
    const auto native = nativePath(dosPath);
    std::error_code ignored;
    return native && fs::exists(*native, ignored);
}

bool FileSystem::isMissing(std::string_view dosPath) const {
    const auto native = nativePath(dosPath);
    std::error_code ignored;
    return !native || fs::status(*native, ignored).type() == fs::file_type::not_found;
}

bool FileSystem::isFolder(std::string_view dosPath) const {
    const auto native = nativePath(dosPath);
    std::error_code ignored;
    return native && fs::is_directory(*native, ignored);
}

std::optional<std::string> FileSystem::readAll(std::string_view dosPath, std::size_t maxBytes,
                                               const ProgressStep& step) const {
    FileHandle file = openForReading(dosPath);
    return file && file.size() <= maxBytes ? file.readAll(maxBytes, step) : std::nullopt;
}

std::optional<std::string> FileSystem::readStart(std::string_view dosPath, std::size_t maxBytes) const {
    FileHandle file = openForReading(dosPath);
    return file ? file.readAll(maxBytes) : std::nullopt;
}

bool FileSystem::copyFile(std::string_view from, std::string_view to) const {
    const auto source = nativePath(from);
    const auto target = nativePath(to);
    return source && target && copyFileOver(*source, *target);
}

bool FileSystem::moveFile(std::string_view from, std::string_view to) const {
    const auto source = nativePath(from);
    const auto target = nativePath(to);
    std::error_code error;
    if (!source || !target || fs::exists(*target, error)) return false;
    fs::rename(*source, *target, error);
    return !error;
}

bool FileSystem::deleteFile(std::string_view dosPath) const {
    const auto place = locate(dosPath);
    if (!place || place->names.empty()) return false;
    const std::string& name = place->names.back();
    const std::string folder = joinNames(place->folder, {place->names.begin(), place->names.end() - 1});
    const bool known = written_.areOf(folder);
    if (::unlink(joinName(folder, name).c_str()) == 0) {
        if (known) written_.remove(name);
        return true;
    }
    const auto found = findNamesInAnyCase(place->folder, place->names);
    return found && ::unlink(found->c_str()) == 0;
}

bool FileSystem::createFolder(std::string_view dosPath) const {
    const auto native = nativePath(dosPath);
    std::error_code error;
    return native && fs::create_directory(*native, error);
}

bool FileSystem::createFolders(std::string_view dosPath) const {
    for (std::size_t end = 3; end < dosPath.size(); ++end) {
        if (dosPath[end] == '\\' || dosPath[end] == '/') createFolder(dosPath.substr(0, end));
    }
    return createFolder(dosPath) || isFolder(dosPath);
}

bool FileSystem::removeFolder(std::string_view dosPath) const {
    const auto native = nativePath(dosPath);
    return native && ::rmdir(native->c_str()) == 0;
}

std::optional<std::vector<FolderEntry>> FileSystem::listFolder(std::string_view dosPath,
                                                               const ProgressStep& step) const {
    const auto native = nativePath(dosPath);
    if (!native) return std::nullopt;
    std::vector<FolderEntry> entries;
    std::error_code error;
    for (fs::directory_iterator it(*native, error), end; !error && it != end; it.increment(error)) {
        if (!GoesOn(step, entries.size(), 0)) return std::nullopt;
        auto name = dosName(it->path().filename().native());
        std::error_code ignored;
        if (name) entries.push_back({std::move(*name), it->is_directory(ignored)});
    }
    if (error) return std::nullopt;
    std::ranges::sort(entries, [](const FolderEntry& a, const FolderEntry& b) {
        const std::string left = toLower(a.name);
        const std::string right = toLower(b.name);
        return left != right ? left < right : a.name < b.name;
    });
    return entries;
}

}  // namespace platform
