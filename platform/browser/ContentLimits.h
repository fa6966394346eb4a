#pragma once

class QWebEngineScript;

namespace platform {

/// A script that takes from every page and frame, before its own scripts run, what content has no use for and
/// could do harm with: connections between browsers, and writing the clipboard. A page can still find both in
/// a frame that has no document yet; so the engine's switches close the network to such connections as well
/// (see prepareProcess), and ClipboardGuard keeps the clipboard.
QWebEngineScript contentLimits();

}  // namespace platform
