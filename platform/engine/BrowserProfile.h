#pragma once

class QWebEngineProfile;

namespace platform {

/// The engine's default profile, which keeps nothing on disk, set up for pages on the machine's drives. All
/// browser controls share it, since each further profile costs memory and start time.
QWebEngineProfile& browserProfile();

}  // namespace platform
