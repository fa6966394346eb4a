#pragma once

namespace platform {

/// Prepares the process for the web browser control. To be called once, before the application object is
/// made: it registers the drive letters as URL schemes and sets the engine's switches. When the process
/// runs as root, where the engine's sandbox refuses to work, it is switched off with a line on standard
/// error.
void prepareProcess();

}  // namespace platform
