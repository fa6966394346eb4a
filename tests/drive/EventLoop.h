#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

/// The application object that event loops need; made when it is first asked for.
inline QCoreApplication& eventApplication() {
    static int count = 1;
    static char name[] = "drive-tests";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
    return application;
}

/// Runs an event loop until it is ended, or for a few seconds; false when the time was over.
inline bool runLoop(QEventLoop& loop) {
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
