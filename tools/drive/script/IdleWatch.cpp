#include "tools/drive/script/IdleWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <limits>
#include <utility>

namespace drive {

namespace {

const auto roundEvent = static_cast<QEvent::Type>(QEvent::registerEventType());
/// Milliseconds until something busy is looked at again.
constexpr int busyPauseMs = 1;
/// Events of the window system, posted events and timers are three sources that Qt serves in turn. After this
/// many quiet rounds each of them has been served since the last event.
constexpr int quietRounds = 3;

}  // namespace

IdleWatch::IdleWatch(std::function<bool()> busy, std::function<void()> idle, std::function<void()> giveUp,
                     std::chrono::milliseconds limit)
    : busy_(std::move(busy)), idle_(std::move(idle)) {
    limit_.setSingleShot(true);
    limit_.setInterval(limit);
    connect(&limit_, &QTimer::timeout, this, [this, giveUp = std::move(giveUp)] {
        stop();
        giveUp();
    });
    pause_.setSingleShot(true);
    pause_.setTimerType(Qt::PreciseTimer);
    connect(&pause_, &QTimer::timeout, this, &IdleWatch::postRound);
}

void IdleWatch::begin() {
    quietRounds_ = 0;
    limit_.start();
    postRound();
}

void IdleWatch::stop() {
    limit_.stop();
    pause_.stop();
}

/// Events are delivered by priority, so this one comes after all others that wait.
void IdleWatch::postRound() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the queue owns it
    QCoreApplication::postEvent(this, new QEvent(roundEvent), std::numeric_limits<int>::min());
}

bool IdleWatch::event(QEvent* event) {
    if (event->type() != roundEvent) return QObject::event(event);
    // This round was posted before the limit was over.
    if (!limit_.isActive()) return true;
    const bool busy = busy_();
    quietRounds_ = busy ? 0 : quietRounds_ + 1;
    if (quietRounds_ < quietRounds) {
        pause_.start(busy ? busyPauseMs : 0);
    } else {
        stop();
        idle_();
    }
    return true;
}

}  // namespace drive
