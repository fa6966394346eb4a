#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Whether two names (UTF-8, within code page 1253) differ at most in letter case.
bool isSameButForCase(std::string_view a, std::string_view b);

/// The name (UTF-8) in a host folder that is `name`, or else differs from it in letter case only (of several
/// the first by byte order); nothing when there is none or the folder cannot be read.
std::optional<std::string> findName(const std::string& folder, std::string_view name);

/// The names in one host folder, remembered for as long as the folder does not change, so that file after
/// file can be created there without listing it each time. A change that another process makes within the
/// host's clock tick of our own last one can stay unseen; then a file can be created beside another whose
/// name differs in case.
class FolderNames {
  public:
    /// Whether the names are those of `folder` as it is now.
    bool areOf(const std::string& folder) const;

    /// Makes the names those of `folder`, read anew when they are not; false when it cannot be read.
    bool take(const std::string& folder);

    /// As `findName` does it.
    std::optional<std::string> find(std::string_view name) const;

    /// Notes that the program itself has just created a file of that name in the folder.
    void add(std::string name);

    /// Notes that the program itself has just deleted the file of that name.
    void remove(std::string_view name);

  private:
    /// What changes when a folder does.
    struct State {
        dev_t device;
        ino_t number;
        off_t size;
        std::int64_t seconds;
        std::int64_t nanoseconds;

        bool operator==(const State&) const = default;
    };
    static std::optional<State> stateOf(const std::string& folder);

    std::string folder_;
    std::optional<State> state_;
    std::vector<std::string> names_;
};

}  // namespace platform
