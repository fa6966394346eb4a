#include "platform/engine/WebPage.h"

#include <QApplication>
#include <QClipboard>
#include <QColor>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMetaObject>
#include <QPointer>
#include <QUrlQuery>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <chrono>
#include <utility>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/DosUrl.h"
#include "platform/engine/BrowserProfile.h"
#include "platform/engine/ClipboardGuard.h"
#include "platform/engine/ContentLimits.h"
#include "platform/engine/EmbedScript.h"
#include "platform/engine/PageBeginning.h"
#include "platform/engine/UnreachablePage.h"
#include "platform/plugins/PluginTypes.h"

namespace platform {

namespace {

/// How long a copy may take to arrive.
constexpr std::chrono::milliseconds copyTime{500};

Q_LOGGING_CATEGORY(consoleLog, "platform.browser.console")

constexpr int maxMessages = 20;
constexpr qsizetype maxMessageLength = 200;

}  // namespace

WebPage::WebPage(Gate gate, PressTaker takePress, QObject* parent)
    : QWebEnginePage(&browserProfile(), parent), gate_(std::move(gate)), takePress_(std::move(takePress)) {
    renewScripts();
    connect(this, &QWebEnginePage::urlChanged, this, &WebPage::noteSite);
    setBackgroundColor(Qt::white);
    copyLimit_.setSingleShot(true);
    copyLimit_.setInterval(copyTime);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &copyLimit_, &QTimer::stop);
    connect(this, &QWebEnginePage::loadFinished, this, &WebPage::finished);
    connect(
        this, &QWebEnginePage::newWindowRequested, this,
        [this](const QWebEngineNewWindowRequest& request) { requestLater(url(), request.requestedUrl()); });
}

/// The scripts belong to the page, not to the profile: when the page's process ends, the next one would not
/// get them from the profile.
void WebPage::renewScripts() {
    scripts().clear();
    scripts().insert(contentLimits());
    if (const auto extensions = PluginTypes::instance().extensions(); !extensions.empty()) {
        scripts().insert(embedScript(extensions));
    }
    if (start_ != PageStart{}) scripts().insert(beginning_ = pageBeginning(start_));
}

/// Another site, as another drive is, comes in a frame of its own. When the former frame ends, the engine
/// forgets its scripts also for that one, but not new ones.
void WebPage::noteSite(const QUrl& url) {
    const QString site = url.scheme() + QLatin1StringView("://") + url.host();
    if (std::exchange(site_, site) != site) renewScripts();
}

void WebPage::go(const PageRequest& request) {
    const QPointer<WebPage> alive(this);
    const bool passed = gate_(request);
    if (alive && passed) load(request.address);
}

void WebPage::open(const QUrl& url, const PageStart& start) {
    messages_ = 0;
    setBeginning(start);
    load(url);
}

void WebPage::reload() {
    setBeginning({});
    arrival_.reload();
}

/// The script stays for the page to which the one that is opened leads on at once.
void WebPage::setBeginning(const PageStart& start) {
    // The engine would lose a script that is put in the place of another between two loads.
    if (start == start_) return;
    if (!beginning_.name().isEmpty()) scripts().remove(beginning_);
    beginning_ = {};
    start_ = start;
    if (start != PageStart{}) scripts().insert(beginning_ = pageBeginning(start));
    if (marked_ == !start.marked.empty()) return;
    marked_ = !marked_;
    marked_ ? qApp->installEventFilter(this) : qApp->removeEventFilter(this);
}

/// Escape takes the marks off wherever the focus is, and does there what else it does.
bool WebPage::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        forgetMarks();
    }
    return QWebEnginePage::eventFilter(receiver, event);
}

void WebPage::forgetMarks() {
    runJavaScript(unmarkScript(), QWebEngineScript::ApplicationWorld);
    setBeginning({});
}

void WebPage::load(const QUrl& url) {
    toldUnreachable_ = false;
    arrival_.load(url);
}

void WebPage::copySelection() {
    ClipboardGuard::instance().expectCopy();
    triggerAction(Copy);
    // The engine copies in a process of its own; the clipboard tells when that is done.
    if (hasSelection()) copyLimit_.start();
}

bool WebPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    if (!isMainFrame && isCommand(url)) return false;
    if (!isMainFrame) return BrowserPolicy::instance().admit({RequestKind::part, this->url(), url});
    // `load` and `reload` are ours.
    if (type == NavigationTypeTyped || type == NavigationTypeReload) return true;
    if (type != NavigationTypeRedirect) setBeginning({});
    // A redirect comes from where the page was to be found, not from the page that is still on show.
    requestLater(type == NavigationTypeRedirect ? arrival_.target() : this->url(), url);
    return false;
}

bool WebPage::isCommand(const QUrl& url) {
    const QUrlQuery query(url);
    const std::string component = query.queryItemValue(QStringLiteral("component")).toStdString();
    bool isNumber = false;
    const int command = query.queryItemValue(QStringLiteral("command")).toInt(&isNumber);
    if (component.empty() || !isNumber) return false;
    const auto send = [this, component, command] {
        if (commandHandler_ && takePress_()) commandHandler_(component, command);
    };
    // Not inside the engine's work: the command may open a dialog.
    QMetaObject::invokeMethod(this, send, Qt::QueuedConnection);
    return true;
}

void WebPage::requestLater(const QUrl& asking, const QUrl& url) {
    ++waiting_;
    const auto kind = takePress_() ? RequestKind::mainPage : RequestKind::onward;
    const auto request = [this, wish = PageRequest{kind, asking, normalisedUrl(url)}] {
        --waiting_;
        arrival_.interrupt();
        go(wish);
    };
    QMetaObject::invokeMethod(this, request, Qt::QueuedConnection);
}

void WebPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message, int line,
                                       const QString& source) {
    if (messages_ >= maxMessages) return;
    qCInfo(consoleLog, "%s:%d: %s", qPrintable(source.left(maxMessageLength)), line,
           qPrintable(message.left(maxMessageLength)));
    if (++messages_ == maxMessages) qCInfo(consoleLog, "Further messages of this page are not shown.");
}

void WebPage::finished(bool arrived) {
    if (!arrived) site_.clear();  // the engine's page for what failed has a frame of its own
    if (!arrived && isOnline(arrival_.target()) && !std::exchange(toldUnreachable_, true)) {
        setHtml(unreachablePage(arrival_.target()), arrival_.target());
    } else {
        arrival_.look();
    }
}

}  // namespace platform
