#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace drive {

/// Finds the moment at which the program has nothing more to do: no event waits, in the main loop or in that
/// of a modal dialog, and nothing is busy. A running timer does not count.
class IdleWatch : public QObject {
  public:
    /// `busy` says whether something will go on by itself; `idle` is called once for each `begin`.
    IdleWatch(std::function<bool()> busy, std::function<void()> idle);

    /// Starts to watch; in the events that follow, `idle` is called.
    void begin();

  protected:
    bool event(QEvent* event) override;

  private:
    void postRound();

    std::function<bool()> m_busy;
    std::function<void()> m_idle;
    QTimer m_pause;
    int m_quietRounds = 0;
};

}  // namespace drive
