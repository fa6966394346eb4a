#include "tools/drive/script/ScriptReader.h"

#include <unistd.h>

#include <array>
#include <utility>

namespace drive {

ScriptReader::ScriptReader(int descriptor, LineHandler line, std::function<void(bool failed)> end)
    : descriptor_(descriptor),
      line_(std::move(line)),
      end_(std::move(end)),
      notifier_(descriptor, QSocketNotifier::Read) {
    notifier_.setEnabled(false);
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { read(); });
}

void ScriptReader::next() { notifier_.setEnabled(!giveLines()); }

void ScriptReader::read() {
    std::array<char, 4096> bytes;
    const ssize_t count = ::read(descriptor_, bytes.data(), bytes.size());
    if (count > 0) {
        bytes_.append(bytes.data(), static_cast<std::size_t>(count));
    } else if (!bytes_.empty()) {
        bytes_ += '\n';
    } else {
        notifier_.setEnabled(false);
        end_(count < 0);
        return;
    }
    // Switched off first, since what the line starts may run an event loop.
    notifier_.setEnabled(false);
    notifier_.setEnabled(!giveLines());
}

/// Gives lines to the handler until it takes one; false when none is left.
bool ScriptReader::giveLines() {
    while (true) {
        const std::size_t end = bytes_.find('\n');
        if (end == std::string::npos) return false;
        const std::string line = bytes_.substr(0, end);
        bytes_.erase(0, end + 1);
        if (line_(line)) return true;
    }
}

}  // namespace drive
