#include "platform/files/ReplaceFile.h"

#include <unistd.h>

#include <atomic>
#include <string>
#include <system_error>

#include "platform/files/FileHandle.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view temporaryEnding = ".tmp";

/// A file beside the one it is to replace; goes away unless it is put in that one's place.
class Replacement {
  public:
    explicit Replacement(const fs::path& target)
        : target_(target), path_(temporaryName(target)), file_(FileHandle::createNew(path_)) {
        created_ = static_cast<bool>(file_);
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement() {
        if (created_) ::unlink(path_.c_str());
    }

    bool created() const { return created_; }
    FileHandle& file() { return file_; }

    bool putInPlace() {
        if (!file_.close() || writeProtected()) return false;
        std::error_code error;
        fs::rename(path_, target_, error);
        if (!error) created_ = false;
        return !error;
    }

  private:
    static fs::path temporaryName(const fs::path& target) {
        static std::atomic<unsigned> counter{0};
        fs::path name = target;
        name += fs::path(
            ('.' + std::to_string(::getpid()) + '-' + std::to_string(counter++)).append(temporaryEnding));
        return name;
    }

    /// Renaming asks only for the right to write the folder; the file's own protection counts here as well.
    bool writeProtected() const {
        return ::access(target_.c_str(), F_OK) == 0 && ::access(target_.c_str(), W_OK) != 0;
    }

    fs::path target_;
    fs::path path_;
    FileHandle file_;
    bool created_ = false;
};

bool copyContent(FileHandle& from, FileHandle& to) {
    std::string block(std::size_t{64} * 1024, '\0');
    while (const auto got = from.read(block.data(), block.size())) {
        if (*got == 0) return true;
        if (!to.write(block.data(), *got)) return false;
    }
    return false;
}

}  // namespace

bool replaceFile(const fs::path& path, std::string_view content) {
    Replacement replacement(path);
    return replacement.created() && replacement.file().write(content.data(), content.size()) &&
           replacement.file().sync() && replacement.putInPlace();
}

bool replaceFile(const FileSystem& files, std::string_view dosPath, std::string_view content) {
    const auto native = files.nativePath(dosPath);
    return native && replaceFile(*native, content);
}

bool copyFileOver(const fs::path& from, const fs::path& to) {
    FileHandle source = FileHandle::openForReading(from);
    return source && copyFileOver(source, to);
}

void deleteHalves(const fs::path& folder, std::string_view start) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string name = at->path().filename().string();
        std::error_code ignored;
        if (name.starts_with(start) && name.ends_with(temporaryEnding)) fs::remove(at->path(), ignored);
    }
}

bool copyFileOver(FileHandle& from, const fs::path& to) {
    Replacement replacement(to);
    return replacement.created() && copyContent(from, replacement.file()) && replacement.putInPlace();
}

}  // namespace platform
