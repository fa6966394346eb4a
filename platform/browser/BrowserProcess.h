#pragma once

#include <string_view>

namespace platform {

/// Prepares the process for the web browser. To be called once, before the application object is
/// made: it makes the browser known as a component and sets the engine's switches. When the process runs as
/// root, where the engine's sandbox refuses to work, it is switched off. That pages run without it is told on
/// standard error, whatever the reason. Returns false when nobody has switched it off, but the host refuses
/// what it needs: pages would run without a part of it.
bool prepareProcess();

/// Why pages are to run without the engine's sandbox, as a line to tell; empty when they are to run in it.
/// `isSwitchedOff` is whether Qt's variable for that is set, `flags` are the switches given to the engine.
std::string_view missingSandbox(bool isRoot, bool isSwitchedOff, std::string_view flags);

}  // namespace platform
