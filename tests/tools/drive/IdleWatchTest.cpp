#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/tools/drive/EventLoop.h"
#include "tools/drive/script/IdleWatch.h"

namespace drive {
namespace {

/// Notes in order what happens, the idle moment among it.
class IdleWatchTest : public EventLoopTest {
  protected:
    void later(std::function<void()> step) {
        QMetaObject::invokeMethod(&m_context, std::move(step), Qt::QueuedConnection);
    }
    void note(const std::string& what) { m_notes += what; }

    QObject m_context;
    std::string m_notes;
    bool m_busy = false;
    QEventLoop m_loop;
    IdleWatch m_watch{[this] { return m_busy; },
                      [this] {
                          note("idle ");
                          m_loop.quit();
                      }};
};

TEST_F(IdleWatchTest, ComesBehindAllThatFollowsFromAnEvent) {
    later([this] {
        m_watch.begin();
        note("first ");
        later([this] {
            note("second ");
            QTimer::singleShot(0, &m_context, [this] { later([this] { note("third "); }); });
        });
    });
    ASSERT_TRUE(runLoop(m_loop));
    EXPECT_EQ(m_notes, "first second third idle ");
}

TEST_F(IdleWatchTest, WaitsForWhatIsBusyButNotForTimers) {
    m_busy = true;
    QTimer::singleShot(30, &m_context, [this] {
        note("done ");
        m_busy = false;
    });
    QTimer running;
    running.start(3'600'000);
    m_watch.begin();
    ASSERT_TRUE(runLoop(m_loop));
    EXPECT_EQ(m_notes, "done idle ");
}

}  // namespace
}  // namespace drive
