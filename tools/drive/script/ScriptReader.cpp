#include "tools/drive/script/ScriptReader.h"

#include <unistd.h>

#include <array>
#include <utility>

namespace drive {

ScriptReader::ScriptReader(int descriptor, LineHandler line, std::function<void(bool failed)> end)
    : m_descriptor(descriptor),
      m_line(std::move(line)),
      m_end(std::move(end)),
      m_notifier(descriptor, QSocketNotifier::Read) {
    m_notifier.setEnabled(false);
    QObject::connect(&m_notifier, &QSocketNotifier::activated, [this] { read(); });
}

void ScriptReader::next() { m_notifier.setEnabled(!giveLines()); }

void ScriptReader::read() {
    std::array<char, 4096> bytes;
    const ssize_t count = ::read(m_descriptor, bytes.data(), bytes.size());
    if (count > 0) {
        m_bytes.append(bytes.data(), static_cast<std::size_t>(count));
    } else if (!m_bytes.empty()) {
        m_bytes += '\n';
    } else {
        m_notifier.setEnabled(false);
        m_end(count < 0);
        return;
    }
    // Before the line is given: what it starts may run an event loop.
    m_notifier.setEnabled(false);
    m_notifier.setEnabled(!giveLines());
}

/// Whether a line was taken.
bool ScriptReader::giveLines() {
    while (true) {
        const std::size_t end = m_bytes.find('\n');
        if (end == std::string::npos) return false;
        const std::string line = m_bytes.substr(0, end);
        m_bytes.erase(0, end + 1);
        if (m_line(line)) return true;
    }
}

}  // namespace drive
