#pragma once

#include <string>
#include <vector>

class QWebEngineScript;

namespace platform {

/// A script that makes every EMBED element whose file has one of these extensions a frame for its viewer
/// page (see PluginTypes), whatever its TYPE, and hands the element's attributes over in the query.
QWebEngineScript embedScript(const std::vector<std::string>& extensions);

}  // namespace platform
