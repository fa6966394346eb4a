#pragma once

#include <string>
#include <vector>

class QWebEngineScript;

namespace platform {

/// A script that makes every EMBED element whose file has one of these extensions a frame for its viewer
/// page (see PluginTypes), whatever its TYPE, and every OBJECT element with a class id a frame for that
/// component's part of the page (see PagePart). It hands the element's attributes over in the query.
///
/// Each embedded file is numbered within its page, as `plugin` in the query. In its world stands
/// `pagePlugins`: `places()` gives a list of number, left, top, right, bottom of each; `ask(number)` sends
/// `{pluginPicture: number}` to the frames, of which the one concerned answers its parent with
/// `{pluginPicture: number, picture: DATA-URL}`, or with the picture `none` when it will never have one, or
/// not at all as long as it has none yet; `picture(number)` is what has come, or null.
QWebEngineScript embedScript(const std::vector<std::string>& extensions);

}  // namespace platform
