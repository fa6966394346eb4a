#include "platform/framework/Run.h"

#include <QApplication>
#include <QWidget>
#include <optional>

#include "platform/dialogs/MessageBox.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/TerminationSignals.h"
#include "platform/framework/View.h"
#include "platform/framework/WinApp.h"
#include "platform/qt/WindowTable.h"

namespace platform {

int RunProgram(CWinApp& app) {
    QApplication::setQuitOnLastWindowClosed(false);
    // When the system ends the program, no message box may keep it waiting.
    std::optional<UnattendedBoxes> unattended;
    const bool started = app.InitInstance();
    // The user may have closed the frame already, while a message box was shown.
    const CFrameWnd* const frame = started ? app.GetMainWnd() : nullptr;
    if (frame) {
        const QWidget* const widget = WindowTable::instance().widget(frame->GetSafeHwnd());
        QObject::connect(widget, &QObject::destroyed, qApp, [] { QCoreApplication::exit(); });
        const TerminationSignals requests([&app, &unattended] {
            unattended.emplace();
            if (CFrameWnd* const open = app.GetMainWnd()) open->SendMessage(WM_CLOSE);
        });
        QCoreApplication::exec();
    }
    return EndProgram(app);
}

int EndProgram(CWinApp& app) {
    const int exitCode = app.ExitInstance();
    app.template_.reset();
    // Windows that have ended are deleted by events, and no event loop runs any more.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return exitCode;
}

}  // namespace platform
