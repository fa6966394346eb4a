#include "platform/files/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// Hands each name in the folder to `use`, which returns whether to go on; false when the folder cannot be
/// read.
template <typename Use>
bool forEachName(const std::string& folder, Use use) {
    const std::unique_ptr<DIR, CloseFolder> listing(::opendir(folder.c_str()));
    if (!listing) return false;
    while (const dirent* entry = ::readdir(listing.get())) {
        if (!use(std::string_view(entry->d_name))) break;
    }
    return true;
}

/// Whether two bytes can stand at one place of names that differ in case only: a letter takes as many bytes
/// of UTF-8 in either case, so ASCII letters stand against each other.
bool canCorrespond(char a, char b) {
    const bool beyondAscii = (a & 0x80) != 0 && (b & 0x80) != 0;
    return beyondAscii || lower(a) == lower(b);
}

/// Chooses among the names that are offered, one after the other.
class NameChoice {
  public:
    explicit NameChoice(std::string_view wanted) : wanted_(wanted) {}

    /// Returns false when no better name can come.
    bool offer(std::string_view name) {
        exact_ = name == wanted_;
        if (exact_ || (isSameButForCase(name, wanted_) && (!chosen_ || name < *chosen_))) chosen_ = name;
        return !exact_;
    }
    const std::optional<std::string>& chosen() const { return chosen_; }

  private:
    std::string_view wanted_;
    std::optional<std::string> chosen_;
    bool exact_ = false;
};

}  // namespace

bool isSameButForCase(std::string_view a, std::string_view b) {
    // Rules out nearly all names without converting them.
    if (!std::ranges::equal(a, b, canCorrespond)) return false;
    const auto first = fromUtf8Strict(a);
    const auto second = fromUtf8Strict(b);
    return first && second && equalsNoCase(*first, *second);
}

std::optional<std::string> findName(const std::string& folder, std::string_view name) {
    NameChoice choice(name);
    forEachName(folder, [&choice](std::string_view candidate) { return choice.offer(candidate); });
    return choice.chosen();
}

std::optional<FolderNames::State> FolderNames::stateOf(const std::string& folder) {
    struct stat status{};
    if (::stat(folder.c_str(), &status) != 0) return std::nullopt;
    return State{status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

bool FolderNames::areOf(const std::string& folder) const {
    return state_ && folder == folder_ && stateOf(folder) == state_;
}

bool FolderNames::take(const std::string& folder) {
    if (areOf(folder)) return true;
    folder_ = folder;
    names_.clear();
    state_ = stateOf(folder);
    const bool read = forEachName(folder, [this](std::string_view name) {
        names_.emplace_back(name);
        return true;
    });
    if (!read) state_.reset();
    return read;
}

std::optional<std::string> FolderNames::find(std::string_view name) const {
    NameChoice choice(name);
    for (const auto& candidate : names_) {
        if (!choice.offer(candidate)) break;
    }
    return choice.chosen();
}

void FolderNames::add(std::string name) {
    names_.push_back(std::move(name));
    state_ = stateOf(folder_);
}

void FolderNames::remove(std::string_view name) {
    std::erase(names_, name);
    state_ = stateOf(folder_);
}

}  // namespace platform
