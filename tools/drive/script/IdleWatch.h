#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

namespace drive {

/// Finds the moment at which the program has nothing more to do: no event waits, neither in the main loop nor
/// in that of a modal dialog, and nothing is busy. A running timer does not count.
class IdleWatch : public QObject {
  public:
    /// `busy` says whether something is at work and will go on without input. For each `begin` either `idle`
    /// is called once, or `giveUp` when the moment has not come within the limit.
    IdleWatch(std::function<bool()> busy, std::function<void()> idle, std::function<void()> giveUp,
              std::chrono::milliseconds limit);

    /// Starts to watch. `idle` or `giveUp` is called from a later event.
    void begin();

  protected:
    bool event(QEvent* event) override;

  private:
    void postRound();
    void stop();

    std::function<bool()> busy_;
    std::function<void()> idle_;
    QTimer pause_;
    QTimer limit_;  ///< runs while the moment is waited for
    int quietRounds_ = 0;
};

}  // namespace drive
