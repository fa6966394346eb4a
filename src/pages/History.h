#pragma once

#include <array>

#include "src/pages/PageAddress.h"

namespace kalyxo {

/// The places shown, for Back and Forward. It holds the last 50; it is not saved.
class History {
  public:
    static constexpr int kCapacity = 50;

    /// Adds a place after the current one and drops the places that Forward could have reached. Does nothing
    /// while a place is being restored.
    void Record(const PageAddress& place);

    bool CanGoBack() const { return m_nCurrent >= 1; }
    bool CanGoForward() const { return m_nCurrent < m_nLast; }
    /// Makes the place before or after the current one current; false when there is none.
    bool StepBack();
    bool StepForward();

    /// Index of the place on show and of the last one; −1 while empty.
    int CurrentIndex() const { return m_nCurrent; }
    int LastIndex() const { return m_nLast; }
    /// The place with an index from 0 to LastIndex().
    const PageAddress& At(int index) const { return m_entries[static_cast<std::size_t>(index)]; }
    const PageAddress& Current() const { return At(m_nCurrent); }

    /// Keeps how far the page of the current place is scrolled down. Does nothing while a place is restored.
    void KeepScrolled(double scrolled);
    /// While a place is being restored, how far its page was scrolled down; else 0.
    double Scrolled() const;

    /// While an object of this class exists, nothing is recorded.
    class Replay {
      public:
        explicit Replay(History& history) : m_history(history) { m_history.m_bReplaying = true; }
        ~Replay() { m_history.m_bReplaying = false; }
        Replay(const Replay&) = delete;
        Replay& operator=(const Replay&) = delete;

      private:
        History& m_history;
    };

  private:
    std::array<PageAddress, kCapacity> m_entries{};
    std::array<double, kCapacity> m_scrolled{};
    int m_nCurrent = -1;
    int m_nLast = -1;
    bool m_bReplaying = false;
};

}  // namespace kalyxo
