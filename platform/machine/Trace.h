#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/machine/BoxAnswer.h"

namespace platform {

/// An automation value in the trace: none, boolean, integer, floating point, or text.
using TraceValue = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

/// A message box was shown.
struct TraceBox {
    std::string text;
    std::string caption;
    std::vector<BoxAnswer> buttons;
    BoxAnswer answer = BoxAnswer::ok;
};

/// What an automation call does.
enum class TraceCallKind { method, get, put };

/// The program called an operation of a hosted component.
struct TraceCall {
    int control = 0;        ///< the id of the component's window
    std::string className;  ///< key "class"
    int dispid = 0;
    TraceCallKind kind = TraceCallKind::method;
    std::string name;
    std::vector<TraceValue> args;
    TraceValue result;
};

/// The program asked a browser to navigate.
struct TraceNavigate {
    int control = 0;  ///< the id of the browser's window
    std::string url;
    int flags = 0;
};

/// A navigation was cancelled.
struct TraceRefused {
    std::string url;
};

/// The program slept.
struct TraceSleep {
    std::uint32_t milliseconds = 0;
};

/// The shell was asked to open something.
struct TraceShell {
    std::string verb;
    std::string file;
    std::string parameters;
    std::string folder;
};

/// A document was printed.
struct TracePrint {
    std::string document;
    int pages = 0;
    std::string file;
};

/// The registration function of a component's module was called.
struct TraceRegister {
    std::string path;
};

/// Something was put on the clipboard.
struct TraceClipboard {
    std::vector<std::string> formats;
};

/// One thing that the program did to the world. All texts are code page 1253.
using TraceEntry = std::variant<TraceBox, TraceCall, TraceNavigate, TraceRefused, TraceSleep, TraceShell,
                                TracePrint, TraceRegister, TraceClipboard>;

/// What the program did to the world, in order. Off at first; otherwise the list would grow although nobody
/// reads it.
class Trace {
  public:
    void enable() { enabled_ = true; }
    bool enabled() const { return enabled_; }

    /// Adds an entry; does nothing while off.
    void record(TraceEntry entry);

    /// The entries since the last call; the list is empty afterwards.
    std::vector<TraceEntry> take();

  private:
    std::vector<TraceEntry> entries_;
    bool enabled_ = false;
};

}  // namespace platform
