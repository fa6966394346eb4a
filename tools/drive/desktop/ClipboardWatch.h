#pragma once

class QObject;

namespace drive {

/// Records in the machine's trace what is put on the clipboard, as long as `watcher` lives.
void watchClipboard(QObject& watcher);

}  // namespace drive
