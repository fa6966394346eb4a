#include "tools/contentc/commands/FolderWatch.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string_view>
#include <system_error>

namespace contentc {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds quiet{150};
constexpr std::uint32_t changes = IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;

bool isHidden(const fs::path& path) { return path.filename().string().starts_with('.'); }

}  // namespace

FolderWatch::FolderWatch(std::vector<fs::path> folders, fs::path except)
    : folders_(std::move(folders)),
      except_(std::move(except)),
      queue_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    watchAll();
}

FolderWatch::~FolderWatch() { ::close(queue_); }

bool FolderWatch::waitForChange(std::chrono::milliseconds atMost) {
    if (!hasChange(atMost) || !takeChanges()) return false;
    while (hasChange(quiet)) takeChanges();
    // There may be folders that were not there before. A folder that is watched already stays so.
    watchAll();
    return true;
}

void FolderWatch::watchAll() {
    watches_ = 0;
    for (const fs::path& folder : folders_) watchBelow(folder);
}

void FolderWatch::watchBelow(const fs::path& folder) {
    if (::inotify_add_watch(queue_, folder.c_str(), changes) >= 0) ++watches_;
    std::error_code failed;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        std::error_code ignored;
        if (it->is_directory(ignored) && !isIgnored(it->path())) watchBelow(it->path());
    }
}

bool FolderWatch::isIgnored(const fs::path& path) const {
    std::error_code ignored;
    return isHidden(path) || fs::equivalent(path, except_, ignored);
}

bool FolderWatch::hasChange(std::chrono::milliseconds atMost) const {
    pollfd queue{queue_, POLLIN, 0};
    return ::poll(&queue, 1, static_cast<int>(atMost.count())) > 0;
}

/// Takes what has happened; whether something of it counts. That the data folder is replaced shows in the
/// folder around it too.
bool FolderWatch::takeChanges() const {
    alignas(inotify_event) std::array<char, 16 * 1024> buffer{};
    const std::string output = except_.filename().string();
    bool counts = false;
    for (;;) {
        const ssize_t size = ::read(queue_, buffer.data(), buffer.size());
        if (size <= 0) return counts;
        for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const std::string_view name = event.len > 0 ? buffer.data() + at + sizeof event : "";
            counts |= !name.starts_with('.') && !name.ends_with('~') && name != output;
            at += sizeof event + event.len;
        }
    }
}

}  // namespace contentc
