#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

/// A test with event loops: it has the application object that they need, before its own members.
class EventLoopTest : public testing::Test {
  protected:
    EventLoopTest() {
        static int count = 1;
        static char name[] = "drive-tests";
        static char* arguments[] = {name, nullptr};
        static const QCoreApplication application(count, arguments);
    }

    /// Runs an event loop until it is ended, or for a few seconds; false when the time was over.
    static bool runLoop(QEventLoop& loop) {
        constexpr int patienceMs = 5000;
        bool ended = true;
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, [&] {
            ended = false;
            loop.quit();
        });
        limit.start(patienceMs);
        loop.exec();
        return ended;
    }
};
