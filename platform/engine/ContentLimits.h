#pragma once

class QWebEngineScript;

namespace platform {

/// A script that takes from every page and frame what content has no use for and could do harm with:
/// connections that the policy does not see, and writing the clipboard. The engine may run a page's own first
/// script before it, and a frame that has no document yet never gets it. So it does not hold alone: the
/// engine's switches close the network to such connections (see prepareProcess), and ClipboardGuard keeps the
/// clipboard.
QWebEngineScript contentLimits();

}  // namespace platform
