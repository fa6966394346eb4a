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

/// All that a program finds around it on its machine: drives, registry, screen, metrics, printer, and the
/// record of what it did. Built from a machine folder with machine.json, registry.reg and the drives'
/// folders.
class Machine {
  public:
    /// Reads a machine folder. A missing machine.json or registry.reg gives the defaults and an empty
    /// registry; a damaged one, or a missing folder, is a failure whose message names the file.
    static Result<std::unique_ptr<Machine>> open(const std::filesystem::path& folder);

    /// A machine from parts; relative drive folders are taken from `folder`.
    Machine(const std::filesystem::path& folder, MachineConfig config, Registry registry);

    FileSystem& files() { return files_; }
    Registry& registry() { return registry_; }
    Trace& trace() { return trace_; }
    const MachineConfig& config() const { return config_; }
    /// The machine folder; what is printed lands here.
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

    /// The DOS path of a library: a path stays as it is; a bare file name is looked for in the program's
    /// folder and then in the system folder. Nothing when it is in neither.
    std::optional<std::string> findLibrary(std::string_view name) const;

    /// Waits; with virtual time it only notes the wait in the trace.
    void sleep(std::uint32_t milliseconds);
    /// Milliseconds since some moment; with virtual time those slept, and `msPerStep` more for each time it
    /// is asked.
    std::uint64_t milliseconds();
    void setVirtualTime(bool on) { virtualTime_ = on; }
    bool virtualTime() const { return virtualTime_; }

    /// Writes what changed in the registry to registry.reg, beside what other programs on the same machine
    /// folder have written there; of two changes to one key the later stands. A file that is gone or damaged
    /// is written anew. False when writing fails.
    bool flushRegistry();

    /// Makes message boxes take their answers from the queue rather than be shown.
    void enableAnswers() { answers_.enable(); }
    /// Adds answers for the next message boxes.
    void queueAnswers(const std::vector<BoxAnswer>& answers) { answers_.add(answers); }
    /// The answer for a box with these buttons, or nothing when the box is to be shown (see
    /// `AnswerQueue::next`).
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

/// The machine on which this process runs; `setMachine` must have named one.
Machine& machine();

/// Names the process's machine, which the caller keeps alive, or takes it away (null).
void setMachine(Machine* current);

/// Whether the process has a machine.
bool hasMachine();

}  // namespace platform
