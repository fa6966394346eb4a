#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Result.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/AnswerQueue.h"
#include "platform/machine/MachineConfig.h"
#include "platform/machine/Metric.h"
#include "platform/machine/Trace.h"
#include "platform/registry/Registry.h"
#include "platform/registry/RegistryNode.h"

namespace platform {

/// The machine on which a program runs: drives, registry, screen, metrics, printer, and a record of what the
/// program did. It is built from a machine folder with machine.json, registry.reg and the folders of the
/// drives.
class Machine {
  public:
    /// Reads a machine folder. Without a machine.json the machine has the `defaults`, without a registry.reg
    /// its registry is empty. For a damaged file, or a missing folder, the failure names it.
    static Result<std::unique_ptr<Machine>> open(const std::filesystem::path& folder,
                                                 const MachineConfig& defaults = {});

    /// Makes a machine from its parts; relative folders of drives are below `folder`.
    Machine(const std::filesystem::path& folder, MachineConfig config, Registry registry);

    FileSystem& files() { return files_; }
    Registry& registry() { return registry_; }
    Trace& trace() { return trace_; }
    const MachineConfig& config() const { return config_; }
    /// The machine folder; printed files are written here.
    const std::filesystem::path& folder() const { return folder_; }

    const ScreenConfig& screen() const { return config_.screen; }
    const SitesConfig& sites() const { return config_.sites; }
    const std::optional<PrinterConfig>& printer() const { return config_.printer; }

    /// A system metric in pixels.
    int metric(SystemMetric metric) const;

    /// DOS path of the running program file.
    const std::string& programPath() const { return config_.program; }
    /// The user's temporary folder, with a backslash at its end.
    std::string tempFolder() const;
    /// The system folder, without a backslash at its end.
    std::string systemFolder() const;

    /// The DOS path of a library. A path is returned as it is. A bare file name is looked for in the
    /// program's folder, then in the system folder; nothing when it is in neither.
    std::optional<std::string> findLibrary(std::string_view name) const;

    /// Waits. With virtual time it does not wait, but the clock advances. Recorded in the trace.
    void sleep(std::uint32_t milliseconds);
    /// Milliseconds since some fixed moment. With virtual time: the sum of all sleeps, plus `msPerStep` for
    /// each call.
    std::uint64_t milliseconds();
    void setVirtualTime(bool on) { virtualTime_ = on; }
    bool virtualTime() const { return virtualTime_; }

    /// Writes the changes in the registry to registry.reg, and keeps what other programs with the same
    /// machine folder have written there. When two programs changed the same key, the later write wins. A
    /// missing or damaged file is written anew. False when writing fails.
    bool flushRegistry();

    /// Has message boxes take their answers from the queue instead of being shown.
    void enableAnswers() { answers_.enable(); }
    /// Adds answers for the next message boxes.
    void queueAnswers(const std::vector<BoxAnswer>& answers) { answers_.add(answers); }
    /// The answer for a box with these buttons, or nothing when the box is to be shown; see
    /// `AnswerQueue::next`.
    std::optional<BoxAnswer> nextAnswer(std::span<const BoxAnswer> buttons) { return answers_.next(buttons); }

  private:
    std::filesystem::path folder_;
    MachineConfig config_;
    FileSystem files_;
    Registry registry_;
    RegistryNode written_;  ///< the registry as last read or written
    Trace trace_;
    AnswerQueue answers_;
    bool virtualTime_ = false;
    std::uint64_t virtualNow_ = 0;
};

/// The machine of this process; `setMachine` must have set one.
Machine& machine();

/// Sets the machine of this process, which the caller keeps alive; null takes it away.
void setMachine(Machine* current);

/// Whether the process has a machine.
bool hasMachine();

}  // namespace platform
