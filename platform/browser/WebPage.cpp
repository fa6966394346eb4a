#include "platform/browser/WebPage.h"

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QMetaObject>
#include <QPointer>
#include <QUrlQuery>
#include <QWebEngineNewWindowRequest>
#include <chrono>
#include <utility>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/BrowserProfile.h"
#include "platform/browser/DosUrl.h"
#include "platform/browser/UnreachablePage.h"

namespace platform {

namespace {

/// How long a copy may take to arrive.
constexpr std::chrono::milliseconds copyTime{500};

}  // namespace

WebPage::WebPage(Gate gate, QObject* parent)
    : QWebEnginePage(&browserProfile(), parent), gate_(std::move(gate)) {
    setBackgroundColor(Qt::white);
    copyLimit_.setSingleShot(true);
    copyLimit_.setInterval(copyTime);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &copyLimit_, &QTimer::stop);
    connect(this, &QWebEnginePage::loadFinished, this, &WebPage::finished);
    connect(
        this, &QWebEnginePage::newWindowRequested, this,
        [this](const QWebEngineNewWindowRequest& request) { requestLater(url(), request.requestedUrl()); });
}

void WebPage::go(const QUrl& asking, const QUrl& url) {
    const QUrl target = normalisedUrl(url);
    const QPointer<WebPage> alive(this);
    const bool passed = gate_({RequestKind::mainPage, asking, target});
    if (alive && passed) open(target);
}

void WebPage::open(const QUrl& url) {
    toldUnreachable_ = false;
    arrival_.load(url);
}

void WebPage::copySelection() {
    triggerAction(Copy);
    // The engine copies in a process of its own; the clipboard tells when that is done.
    if (hasSelection()) copyLimit_.start();
}

bool WebPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    if (!isMainFrame && isCommand(url)) return false;
    if (!isMainFrame) return BrowserPolicy::instance().admit({RequestKind::part, this->url(), url});
    // `load` and `reload` are ours.
    if (type == NavigationTypeTyped || type == NavigationTypeReload) return true;
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
        if (commandHandler_) commandHandler_(component, command);
    };
    // Not inside the engine's work: the command may open a dialog.
    QMetaObject::invokeMethod(this, send, Qt::QueuedConnection);
    return true;
}

void WebPage::requestLater(const QUrl& asking, const QUrl& url) {
    ++waiting_;
    const auto request = [this, asking, url] {
        --waiting_;
        arrival_.interrupt();
        go(asking, url);
    };
    QMetaObject::invokeMethod(this, request, Qt::QueuedConnection);
}

void WebPage::finished(bool arrived) {
    if (!arrived && isOnline(arrival_.target()) && !std::exchange(toldUnreachable_, true)) {
        setHtml(unreachablePage(arrival_.target()), arrival_.target());
    } else {
        arrival_.look();
    }
}

}  // namespace platform
