// Preloaded into a program, this library counts the operations of the program on files of some folders and
// lets one of them fail. All is told by the environment:
//
// FAULTS_BELOW: the folders, with colons between them.
//
// FAULTS_LOG: a file that gets a line "operation path bytes" for each operation; a failing one begins with
// "! ".
//
// FAULTS_AT: operation and path of those among which one fails. FAULTS_NTH: which of them, from 1.
//
// FAULTS_ERROR: the error number. FAULTS_TAKES: how many bytes a failing write still takes.
//
// FAULTS_THEN: "works" when only this one fails; "full" when later ones that need room fail too; "gone" when
// all later ones do.
//
// Paths stand in the log from their folder on, with a # for what another run names otherwise.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string setting(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::vector<std::string> parts(const std::string& text) {
    std::vector<std::string> found(1);
    for (const char c : text) {
        if (c == ':') {
            found.emplace_back();
        } else {
            found.back() += c;
        }
    }
    return found;
}

bool isLetterOrDigit(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }

/// Without what another run names otherwise: numbers, and an ending of six letters chosen by chance.
std::string general(std::string path) {
    const std::size_t dot = path.rfind('.');
    if (dot != path.npos && path.size() - dot == 7 &&
        std::all_of(path.end() - 6, path.end(), isLetterOrDigit))
        path.replace(dot + 1, 6, "#");
    std::string result;
    for (const char c : path) {
        const char shown = c >= '0' && c <= '9' ? '#' : c;
        if (shown != '#' || !result.ends_with('#')) result += shown == ' ' ? '_' : shown;
    }
    return result;
}

const pid_t ownProcess = ::getpid();

/// Whether this is a process that is being started and still lives in the memory of its parent, with a few
/// kilobytes of stack. Its operations are not counted.
bool isStarting() { return ::getpid() != ownProcess; }

std::string linkTarget(const std::string& link) {
    std::string path(PATH_MAX, '\0');
    const long length = ::syscall(SYS_readlink, link.c_str(), path.data(), path.size());
    path.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return path;
}

std::string pathOf(int descriptor) { return linkTarget("/proc/self/fd/" + std::to_string(descriptor)); }

/// Where an operation takes place.
struct Place {
    Place(int descriptor) : path(isStarting() ? std::string() : pathOf(descriptor)) {}
    Place(const char* name) : Place(AT_FDCWD, name) {}
    Place(int folder, const char* name) {
        if (isStarting()) return;
        const std::string_view given = name ? name : "";
        if (!given.starts_with('/'))
            path = folder == AT_FDCWD ? linkTarget("/proc/self/cwd") : pathOf(folder);
        if (!given.empty()) path.append(path.empty() ? "" : "/").append(given);
    }

    std::string path;
};

/// Operations that need room on the medium.
constexpr std::string_view needRoom[] = {"create", "write", "reserve", "mkdir", "link", "rename"};

enum class Outcome { works, fails, failsLater };

class Faults {
  public:
    /// Never destroyed, since files are closed up to the very end of the program.
    static Faults& instance() {
        alignas(Faults) static std::array<std::byte, sizeof(Faults)> place;
        static auto* const faults = ::new (place.data()) Faults;  // NOLINT(*-owning-memory)
        return *faults;
    }

    /// Counts an operation; errno is set when it is to fail.
    Outcome count(const char* operation, const Place& place, std::size_t bytes = 0) {
        if (isStarting()) return Outcome::works;
        const auto folder = std::ranges::find_if(
            below_, [&](const std::string& each) { return (place.path + '/').starts_with(each + '/'); });
        if (folder == below_.end()) return Outcome::works;
        const std::string key =
            std::string(operation) + ' ' + general(place.path.substr(folder->rfind('/') + 1));
        const std::scoped_lock lock(mutex_);
        const Outcome outcome = outcomeOf(operation, key, *folder);
        log((outcome == Outcome::works ? "" : "! ") + key + ' ' + std::to_string(bytes) + '\n');
        if (outcome != Outcome::works) errno = error_;
        return outcome;
    }

    /// How many of so many bytes a write takes; nothing when it fails.
    std::optional<std::size_t> takes(int descriptor, std::size_t bytes) {
        const Outcome outcome = count("write", descriptor, bytes);
        if (outcome == Outcome::works) return bytes;
        if (outcome == Outcome::failsLater || takes_ == 0) return std::nullopt;
        return std::min(takes_, bytes);
    }

  private:
    Faults() {
        // What the program starts is not meant.
        ::unsetenv("LD_PRELOAD");
        const int flags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC;
        log_ = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, setting("FAULTS_LOG").c_str(), flags, 0666));
    }

    Outcome outcomeOf(const char* operation, const std::string& key, const std::string& folder) {
        if (key == at_ && ++count_ == nth_) {
            if (then_ != "works") failing_ = folder;
            return Outcome::fails;
        }
        const bool goesOn =
            failing_ == folder && (then_ == "gone" || (then_ == "full" && needsRoom(operation)));
        return goesOn ? Outcome::failsLater : Outcome::works;
    }

    static bool needsRoom(std::string_view operation) {
        return std::ranges::find(needRoom, operation) != std::end(needRoom);
    }

    void log(const std::string& line) const { ::syscall(SYS_write, log_, line.data(), line.size()); }

    static unsigned long number(const char* name) { return std::strtoul(setting(name).c_str(), nullptr, 10); }

    const std::vector<std::string> below_ = parts(setting("FAULTS_BELOW"));
    const std::string at_ = setting("FAULTS_AT");
    const unsigned long nth_ = number("FAULTS_NTH");
    const int error_ = static_cast<int>(number("FAULTS_ERROR"));
    const std::size_t takes_ = number("FAULTS_TAKES");
    const std::string then_ = setting("FAULTS_THEN");
    std::mutex mutex_;
    unsigned long count_ = 0;
    std::string failing_;  ///< the folder in which operations go on failing
    int log_ = -1;
};

// Before the program opens any file.
[[maybe_unused]] const Faults& atStart = Faults::instance();

bool fail(const char* operation, const Place& place) {
    return Faults::instance().count(operation, place) != Outcome::works;
}

bool creates(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

bool failOpen(const Place& place, int flags) {
    const bool writes = (flags & (O_WRONLY | O_RDWR)) != 0;
    return fail(creates(flags) ? "create" : writes ? "open-to-write" : "open", place);
}

bool failDuplicate(int descriptor, int command) {
    return (command == F_DUPFD || command == F_DUPFD_CLOEXEC) && fail("duplicate", descriptor);
}

int flagsOf(std::string_view mode) {
    if (mode.starts_with('r')) return mode.find('+') == mode.npos ? O_RDONLY : O_RDWR;
    return O_WRONLY | O_CREAT;
}

/// The last argument of a call that opens.
mode_t modeOf(int flags, va_list rest) { return creates(flags) ? va_arg(rest, mode_t) : 0; }

template <typename Function>
Function* hostFunction(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// A file is closed even when that fails.
template <typename Close>
int closing(int descriptor, const Close& close) {
    const bool fails = fail("close", descriptor);
    const int failure = errno;
    const int done = close();
    if (fails) errno = failure;
    return fails ? EOF : done;
}

[[gnu::noinline]] bool failOpenat2(long folder, long path, long how) {
    const Place place(static_cast<int>(folder), reinterpret_cast<const char*>(path));
    return failOpen(place, static_cast<int>(reinterpret_cast<const open_how*>(how)->flags));
}

}  // namespace

// The host's own function of a name.
#define HOST(name)                                                      \
    (*[] {                                                              \
        static const auto host = hostFunction<decltype(::name)>(#name); \
        return host;                                                    \
    }())

// NOLINTBEGIN: the names and parameters are those of the host's library.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return failOpen(path, flags) ? -1 : HOST(open)(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return failOpen({folder, path}, flags) ? -1 : HOST(openat)(folder, path, flags, mode);
}

FILE* fopen(const char* path, const char* mode) {
    return failOpen(path, flagsOf(mode)) ? nullptr : HOST(fopen)(path, mode);
}

// A call that starts a process comes back twice on one stack, so no frame of this function may stand there
// any more: it ends by a jump to the host's function, which gcc writes from -O2 on (CMakeLists.txt).
long numberedCall(long number, long a, long b, long c, long d, long e, long f) noexcept __asm__("syscall");
long numberedCall(long number, long a, long b, long c, long d, long e, long f) noexcept {
    if (number == SYS_openat2 && failOpenat2(a, b, c)) return -1;
    using Call = long(long, long, long, long, long, long, long) noexcept;
    return reinterpret_cast<Call*>(&HOST(syscall))(number, a, b, c, d, e, f);
}

int close(int descriptor) {
    return closing(descriptor, [&] { return HOST(close)(descriptor); });
}
int fclose(FILE* stream) {
    return closing(::fileno(stream), [&] { return HOST(fclose)(stream); });
}

int fcntl(int descriptor, int command, ...) {
    va_list rest;
    va_start(rest, command);
    const long argument = va_arg(rest, long);
    va_end(rest);
    return failDuplicate(descriptor, command) ? -1 : HOST(fcntl)(descriptor, command, argument);
}

ssize_t read(int descriptor, void* buffer, size_t size) {
    return fail("read", descriptor) ? -1 : HOST(read)(descriptor, buffer, size);
}
ssize_t pread(int descriptor, void* buffer, size_t size, off_t offset) {
    return fail("read", descriptor) ? -1 : HOST(pread)(descriptor, buffer, size, offset);
}

ssize_t write(int descriptor, const void* bytes, size_t size) {
    const auto taken = Faults::instance().takes(descriptor, size);
    return taken ? HOST(write)(descriptor, bytes, *taken) : -1;
}
ssize_t writev(int descriptor, const iovec* blocks, int count) {
    std::size_t size = 0;
    for (int i = 0; i < count; ++i) size += blocks[i].iov_len;
    const auto taken = Faults::instance().takes(descriptor, size);
    if (!taken) return -1;
    if (*taken == size) return HOST(writev)(descriptor, blocks, count);
    return HOST(write)(descriptor, blocks[0].iov_base, std::min(*taken, blocks[0].iov_len));
}

// Returns the error number and leaves errno alone.
int posix_fallocate(int descriptor, off_t offset, off_t size) {
    return fail("reserve", descriptor) ? errno : HOST(posix_fallocate)(descriptor, offset, size);
}

int fsync(int descriptor) { return fail("sync", descriptor) ? -1 : HOST(fsync)(descriptor); }
int fdatasync(int descriptor) { return fail("sync", descriptor) ? -1 : HOST(fdatasync)(descriptor); }
int ftruncate(int descriptor, off_t size) noexcept {
    return fail("truncate", descriptor) ? -1 : HOST(ftruncate)(descriptor, size);
}
int fstat(int descriptor, struct stat* found) noexcept {
    return fail("stat", descriptor) ? -1 : HOST(fstat)(descriptor, found);
}

int stat(const char* path, struct stat* found) noexcept {
    return fail("stat", path) ? -1 : HOST(stat)(path, found);
}
int lstat(const char* path, struct stat* found) noexcept {
    return fail("stat", path) ? -1 : HOST(lstat)(path, found);
}
int fstatat(int folder, const char* path, struct stat* found, int flags) noexcept {
    return fail("stat", {folder, path}) ? -1 : HOST(fstatat)(folder, path, found, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* found) noexcept {
    return fail("stat", {folder, path}) ? -1 : HOST(statx)(folder, path, flags, mask, found);
}
int access(const char* path, int how) noexcept { return fail("access", path) ? -1 : HOST(access)(path, how); }

int mkdir(const char* path, mode_t mode) noexcept {
    return fail("mkdir", path) ? -1 : HOST(mkdir)(path, mode);
}
int unlink(const char* path) noexcept { return fail("delete", path) ? -1 : HOST(unlink)(path); }
int rmdir(const char* path) noexcept { return fail("delete", path) ? -1 : HOST(rmdir)(path); }
int remove(const char* path) noexcept { return fail("delete", path) ? -1 : HOST(remove)(path); }
int unlinkat(int folder, const char* path, int flags) noexcept {
    return fail("delete", {folder, path}) ? -1 : HOST(unlinkat)(folder, path, flags);
}
int utimensat(int folder, const char* path, const timespec* times, int flags) noexcept {
    return fail("set-time", {folder, path}) ? -1 : HOST(utimensat)(folder, path, times, flags);
}

// Known by where they lead.
int rename(const char* from, const char* to) noexcept {
    return fail("rename", to) ? -1 : HOST(rename)(from, to);
}
int renameat(int folder, const char* from, int toFolder, const char* to) noexcept {
    return fail("rename", {toFolder, to}) ? -1 : HOST(renameat)(folder, from, toFolder, to);
}
int renameat2(int folder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    return fail("rename", {toFolder, to}) ? -1 : HOST(renameat2)(folder, from, toFolder, to, flags);
}
int link(const char* from, const char* to) noexcept { return fail("link", to) ? -1 : HOST(link)(from, to); }
int symlink(const char* from, const char* to) noexcept {
    return fail("link", to) ? -1 : HOST(symlink)(from, to);
}
int linkat(int folder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return fail("link", {toFolder, to}) ? -1 : HOST(linkat)(folder, from, toFolder, to, flags);
}

DIR* opendir(const char* path) { return fail("list", path) ? nullptr : HOST(opendir)(path); }
DIR* fdopendir(int descriptor) { return fail("list", descriptor) ? nullptr : HOST(fdopendir)(descriptor); }
dirent* readdir(DIR* folder) { return fail("list-next", ::dirfd(folder)) ? nullptr : HOST(readdir)(folder); }

// On this host these are the same.
int open64(const char* path, int flags, ...) __attribute__((alias("open")));
int openat64(int folder, const char* path, int flags, ...) __attribute__((alias("openat")));
FILE* fopen64(const char* path, const char* mode) __attribute__((alias("fopen")));
int fcntl64(int descriptor, int command, ...) __attribute__((alias("fcntl")));
ssize_t pread64(int descriptor, void* buffer, size_t size, off64_t offset) __attribute__((alias("pread")));
int posix_fallocate64(int descriptor, off64_t offset, off64_t size) __attribute__((alias("posix_fallocate")));
int ftruncate64(int descriptor, off64_t size) noexcept __attribute__((alias("ftruncate")));
int fstat64(int descriptor, struct stat64* found) noexcept __attribute__((alias("fstat")));
int stat64(const char* path, struct stat64* found) noexcept __attribute__((alias("stat")));
int lstat64(const char* path, struct stat64* found) noexcept __attribute__((alias("lstat")));
int fstatat64(int folder, const char* path, struct stat64* found, int flags) noexcept
    __attribute__((alias("fstatat")));
dirent64* readdir64(DIR* folder) __attribute__((alias("readdir")));

}  // extern "C"
// NOLINTEND
