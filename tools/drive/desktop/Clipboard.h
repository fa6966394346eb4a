#pragma once

#include <string>
#include <vector>

class QObject;

namespace drive {

/// The formats on the clipboard: text and bitmap under the platform's names, others under their own.
std::vector<std::string> clipboardFormats();

/// Records every change of the clipboard in the machine's trace, as long as `watcher` lives.
void watchClipboard(QObject& watcher);

}  // namespace drive
