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
        QMetaObject::invokeMethod(&context_, std::move(step), Qt::QueuedConnection);
    }
    void note(const std::string& what) { notes_ += what; }

    QObject context_;
    std::string notes_;
    bool busy_ = false;
    QEventLoop loop_;
    IdleWatch watch_{[this] { return busy_; },
                     [this] {
                         note("idle ");
                         loop_.quit();
                     },
                     [this] {
                         note("given up ");
                         loop_.quit();
                     },
                     std::chrono::milliseconds(200)};
};

TEST_F(IdleWatchTest, ComesBehindAllThatFollowsFromAnEvent) {
    later([this] {
        watch_.begin();
        note("first ");
        later([this] {
            note("second ");
            QTimer::singleShot(0, &context_, [this] { later([this] { note("third "); }); });
        });
    });
    ASSERT_TRUE(runLoop(loop_));
    EXPECT_EQ(notes_, "first second third idle ");
}

TEST_F(IdleWatchTest, WaitsForWhatIsBusyButNotForTimers) {
    busy_ = true;
    QTimer::singleShot(30, &context_, [this] {
        note("done ");
        busy_ = false;
    });
    QTimer running;
    running.start(3'600'000);
    watch_.begin();
    ASSERT_TRUE(runLoop(loop_));
    EXPECT_EQ(notes_, "done idle ");
}

TEST_F(IdleWatchTest, GivesUpWhatNeverComesToRest) {
    busy_ = true;
    watch_.begin();
    ASSERT_TRUE(runLoop(loop_));
    EXPECT_EQ(notes_, "given up ");
    busy_ = false;
    watch_.begin();
    ASSERT_TRUE(runLoop(loop_));
    EXPECT_EQ(notes_, "given up idle ");
}

}  // namespace
}  // namespace drive
