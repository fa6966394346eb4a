#pragma once

#include <string>
#include <vector>

namespace platform {

/// Prepares the process for the web browser. To be called once, before the application object is
/// made: it makes the browser known as a component, registers the drive letters as URL schemes and sets the
/// engine's switches. When the process runs as root, where the engine's sandbox refuses to work, it is
/// switched off with a line on standard error.
void prepareProcess();

/// Whether the engine's own program, without which it would end this one, is where it looks for it. To be
/// asked once the application object is made.
bool engineIsInstalled();

/// Lets the engine find these hosts on the network, and no other. To be called before the first browser is
/// made; names of other characters than letters, digits, hyphens and stops are left out.
void letEngineFind(const std::vector<std::string>& hosts);

}  // namespace platform
