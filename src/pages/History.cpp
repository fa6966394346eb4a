#include "src/pages/History.h"

#include <algorithm>

namespace kalyxo {

void History::Record(const PageAddress& place) {
    if (m_bReplaying) return;
    ++m_nCurrent;
    if (m_nCurrent == kCapacity) {
        std::ranges::rotate(m_entries, m_entries.begin() + 1);
        std::ranges::rotate(m_scrolled, m_scrolled.begin() + 1);
        m_nCurrent = kCapacity - 1;
    }
    m_nLast = m_nCurrent;
    m_entries[static_cast<std::size_t>(m_nCurrent)] = place;
    m_scrolled[static_cast<std::size_t>(m_nCurrent)] = 0;
}

void History::KeepScrolled(double scrolled) {
    if (!m_bReplaying && m_nCurrent >= 0) m_scrolled[static_cast<std::size_t>(m_nCurrent)] = scrolled;
}

double History::Scrolled() const {
    return m_bReplaying ? m_scrolled[static_cast<std::size_t>(m_nCurrent)] : 0;
}

bool History::StepBack() {
    if (!CanGoBack()) return false;
    --m_nCurrent;
    return true;
}

bool History::StepForward() {
    if (!CanGoForward()) return false;
    ++m_nCurrent;
    return true;
}

}  // namespace kalyxo
