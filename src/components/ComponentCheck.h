#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace platform {
class Machine;
}

namespace kalyxo {

/// Registers a component file. `file` is a whole path with `fullPath`, else a name in the program's ActiveX
/// folder. A file that does not load is ignored.
void RegisterComponentFile(std::string_view programFolder, std::string_view file, bool fullPath = false);

/// The check of a program that runs outside its installed folder. It replaces libraries and components of the
/// machine that are older than the copies in the program's ActiveX folder.
class ComponentCheck {
  public:
    /// Asks the user whether older components are to be replaced.
    using Question = std::function<bool()>;

    /// How the check ended.
    enum class Result {
        upToDate,
        refused,    ///< the user keeps an older component, and the start cannot go on
        registered  ///< something was replaced or registered, and the program must be started again
    };

    ComponentCheck(platform::Machine& machine, std::string programFolder, Question replaceOlder)
        : m_machine(machine),
          m_programFolder(std::move(programFolder)),
          m_replaceOlder(std::move(replaceOlder)) {}

    Result Run();

  private:
    enum class ReplaceDecision { notAsked = 0, yes = 1, no = 2 };

    void updateSystemLibraries();
    /// Replaces a library of the system folder that is older than the supplied copy. The former file is kept
    /// under another name.
    void UpdateSystemLibrary(std::string_view name);
    /// Registers the supplied copy of a component when none, or an older version, is registered.
    void CheckComponentFile(std::string_view file, std::string_view classId);
    bool userKeepsOlder();

    platform::Machine& m_machine;
    std::string m_programFolder;
    Question m_replaceOlder;
    bool m_bComponentsRegistered = false;
    ReplaceDecision m_nReplaceDecision = ReplaceDecision::notAsked;
};

}  // namespace kalyxo
