#pragma once

#include <QTimer>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <functional>
#include <string>
#include <utility>

#include "platform/base/Messages.h"
#include "platform/browser/RequestPolicy.h"
#include "platform/components/PageTools.h"
#include "platform/engine/PageArrival.h"

namespace platform {

/// A page of the engine. When it wants to lead elsewhere, a gate is asked first.
///
/// The engine asks for leave in the middle of its own work; a dialog shown at that moment could load nothing.
/// So the page's wish is refused there, put to the gate once the engine has returned, and carried out as a
/// navigation of our own.
class WebPage : public QWebEnginePage {
    Q_OBJECT

  public:
    /// Says whether a navigation may go on that a page wants. The gate may run an event loop.
    using Gate = std::function<bool(const PageRequest& request)>;

    /// Says whether the user has just pressed a key or the mouse in the page, which counts for one thing that
    /// the page does in answer (see UserPress).
    using PressTaker = std::function<bool()>;

    /// Takes a command that a component's part of the page sends (see PagePart): class id and number.
    using CommandHandler = std::function<void(const std::string& classId, LPARAM command)>;

    /// Takes what waits when the page's process has ended: an address, and how its page begins. This page is
    /// then of no more use.
    using Successor = std::function<void(const QUrl& url, const PageStart& start)>;

    WebPage(Gate gate, PressTaker takePress, QObject* parent);

    void setCommandHandler(CommandHandler handler) { commandHandler_ = std::move(handler); }
    void setSuccessor(Successor successor) { successor_ = std::move(successor); }

    /// Goes to an address that the program wants, in its normalised form. The page begins as `start` says.
    void open(const QUrl& url, const PageStart& start);
    /// Loads the page again, without asking the gate.
    void reload();
    /// Puts the selection on the clipboard, a moment later.
    void copySelection();

    /// Whether a navigation waits, a page is being loaded or the selection copied; a page that leads on to
    /// another at once counts as loading until that other one has come.
    bool busy() const { return waiting_ > 0 || copyLimit_.isActive() || arrival_.pending(); }

    /// Whether the page that is being loaded has not begun, so that the former one is still there.
    bool isFormer() const { return arrival_.isBefore(); }

    bool eventFilter(QObject* receiver, QEvent* event) override;

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;

    // A page shows no dialogs, holds nobody back who leaves it, and asks for no files of the machine.
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return true; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    /// Logs the first messages of a page under the category `platform.browser.console`, cut short.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString& source) override;

  private:
    void renewScripts();
    void noteSite(const QUrl& url);
    void setBeginning(const PageStart& start);
    void forgetMarks();
    void requestLater(const QUrl& asking, const QUrl& url);
    bool isCommand(const QUrl& url);
    void go(const PageRequest& request);
    void load(const QUrl& url);
    void finished(bool arrived);

    Gate gate_;
    PressTaker takePress_;
    CommandHandler commandHandler_;
    Successor successor_;
    PageArrival arrival_{*this, [this] { successor_(arrival_.target(), start_); }};
    bool toldUnreachable_ = false;
    QTimer copyLimit_;  // runs while the engine copies
    int waiting_ = 0;   // navigations asked for by the page and not yet put to the gate
    QString site_;      // of the page on show
    PageStart start_;
    QWebEngineScript beginning_;  // of the page that the program opened
    bool marked_ = false;         // whether words are marked in the page
    int messages_ = 0;            // of the page's scripts, since the program opened it
};

}  // namespace platform
