#include "tools/drive/script/IdleWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <limits>
#include <utility>

namespace drive {

namespace {

const auto kRound = static_cast<QEvent::Type>(QEvent::registerEventType());
/// Between two looks at something busy.
constexpr int kBusyPauseMs = 1;
/// Events of the window system, posted events and elapsed timers come from different sources, which take
/// turns: after this many turns without anything to do each has been looked at since the last one did
/// something.
constexpr int kQuietRounds = 3;

}  // namespace

IdleWatch::IdleWatch(std::function<bool()> busy, std::function<void()> idle)
    : m_busy(std::move(busy)), m_idle(std::move(idle)) {
    m_pause.setSingleShot(true);
    m_pause.setTimerType(Qt::PreciseTimer);
    connect(&m_pause, &QTimer::timeout, this, &IdleWatch::postRound);
}

void IdleWatch::begin() {
    m_quietRounds = 0;
    postRound();
}

/// Behind everything that waits: events are delivered by priority, so this one comes when there is no other.
void IdleWatch::postRound() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the queue owns it
    QCoreApplication::postEvent(this, new QEvent(kRound), std::numeric_limits<int>::min());
}

bool IdleWatch::event(QEvent* event) {
    if (event->type() != kRound) return QObject::event(event);
    const bool busy = m_busy();
    m_quietRounds = busy ? 0 : m_quietRounds + 1;
    if (m_quietRounds < kQuietRounds) {
        m_pause.start(busy ? kBusyPauseMs : 0);
    } else {
        m_idle();
    }
    return true;
}

}  // namespace drive
