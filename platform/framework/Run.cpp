#include "platform/framework/Run.h"

#include <QApplication>
#include <QWidget>

#include "platform/framework/Document.h"
#include "platform/framework/EndRequests.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/WinApp.h"
#include "platform/qt/WindowTable.h"

namespace platform {

int RunProgram(CWinApp& app) {
    QApplication::setQuitOnLastWindowClosed(false);
    const bool started = app.InitInstance();
    // The frame may have been closed already by then, while a message box was up.
    const CFrameWnd* const frame = started ? app.GetMainWnd() : nullptr;
    if (frame) {
        const QWidget* const widget = WindowTable::instance().widget(frame->GetSafeHwnd());
        QObject::connect(widget, &QObject::destroyed, qApp, [] { QCoreApplication::exit(); });
        const EndRequests requests([&app] {
            if (CFrameWnd* const open = app.GetMainWnd()) open->SendMessage(WM_CLOSE);
        });
        QCoreApplication::exec();
    }
    return EndProgram(app);
}

int EndProgram(CWinApp& app) {
    const int exitCode = app.ExitInstance();
    app.m_template.reset();
    // Ended windows wait for their last event to be over; there is none any more.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return exitCode;
}

}  // namespace platform
