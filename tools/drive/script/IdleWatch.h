#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace drive {

/// Finds the moment at which the program has nothing more to do: no event waits, neither in the main loop nor
/// in that of a modal dialog, and nothing is busy. A running timer does not count.
class IdleWatch : public QObject {
  public:
    /// `busy` says whether something is at work and will go on without input. `idle` is called once for each
    /// `begin`.
    IdleWatch(std::function<bool()> busy, std::function<void()> idle);

    /// Starts to watch. `idle` is called from a later event.
    void begin();

  protected:
    bool event(QEvent* event) override;

  private:
    void postRound();

    std::function<bool()> busy_;
    std::function<void()> idle_;
    QTimer pause_;
    int quietRounds_ = 0;
};

}  // namespace drive
