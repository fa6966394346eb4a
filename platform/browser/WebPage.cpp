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

bool isOnline(const QUrl& url) { return url.scheme().startsWith(QLatin1StringView("http")); }

}  // namespace

WebPage::WebPage(Gate gate, QObject* parent)
    : QWebEnginePage(&browserProfile(), parent), gate_(std::move(gate)) {
    setBackgroundColor(Qt::white);
    copyLimit_.setSingleShot(true);
    copyLimit_.setInterval(copyTime);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &copyLimit_, &QTimer::stop);
    connect(this, &QWebEnginePage::loadFinished, this, &WebPage::finished);
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest& request) { requestLater(request.requestedUrl()); });
}

void WebPage::go(const QUrl& asking, const QUrl& url) {
    const QUrl target = normalisedUrl(url);
    const QPointer<WebPage> alive(this);
    const bool passed = gate_(asking, target);
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
    if (!isMainFrame) return BrowserPolicy::instance().admit(addressOfUrl(this->url()), addressOfUrl(url));
    // `load` and `reload` are ours.
    if (type == NavigationTypeTyped || type == NavigationTypeReload) return true;
    requestLater(url);
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

void WebPage::requestLater(const QUrl& url) {
    ++waiting_;
    const auto request = [this, url] {
        --waiting_;
        arrival_.interrupt();
        go(this->url(), url);
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
