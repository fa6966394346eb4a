#include "platform/automation/WebPage.h"

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QMetaObject>
#include <QPointer>
#include <QUrlQuery>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <chrono>
#include <utility>

#include "platform/automation/BrowserPolicy.h"
#include "platform/automation/BrowserProfile.h"
#include "platform/automation/DosUrl.h"
#include "platform/automation/UnreachablePage.h"

namespace platform {

namespace {

/// How long a page that says it leads on to another may take to do so.
constexpr std::chrono::seconds redirectTime{2};
/// How long the last of several quick loads may stay away after an earlier one came, before it is asked for
/// again: the engine may lose a load that begins while it hands over the page of another.
constexpr std::chrono::milliseconds missedTime{500};
constexpr int missedTries = 3;
/// How long a copy may take to arrive.
constexpr std::chrono::milliseconds copyTime{500};

/// Whether the page refreshes itself within a second.
constexpr auto leadsOnScript = QLatin1StringView(
    "[...document.querySelectorAll('meta[http-equiv=refresh i]')]"
    ".some(m => parseFloat(m.content) < 1 && /url/i.test(m.content))");

bool isOnline(const QUrl& url) { return url.scheme().startsWith(QLatin1StringView("http")); }

}  // namespace

WebPage::WebPage(Gate gate, QObject* parent)
    : QWebEnginePage(&browserProfile(), parent), gate_(std::move(gate)) {
    setBackgroundColor(Qt::white);
    arrivalLimit_.setSingleShot(true);
    copyLimit_.setSingleShot(true);
    copyLimit_.setInterval(copyTime);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &copyLimit_, &QTimer::stop);
    connect(&arrivalLimit_, &QTimer::timeout, this, &WebPage::giveUpWaiting);
    connect(this, &QWebEnginePage::loadFinished, this, &WebPage::finished);
    connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] { loading_ = false; });
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest& request) { requestLater(request.requestedUrl()); });
}

void WebPage::navigate(const QUrl& url) { go(QUrl(), url); }

void WebPage::go(const QUrl& asking, const QUrl& url) {
    const QUrl target = normalisedUrl(url);
    const QPointer<WebPage> alive(this);
    const bool passed = gate_(asking, target);
    if (alive && passed) open(target);
}

void WebPage::open(const QUrl& url) {
    startLoading();
    tries_ = missedTries;
    toldUnreachable_ = false;
    target_ = url;
    load(target_);
}

void WebPage::reload() {
    startLoading();
    triggerAction(Reload);
}

void WebPage::copySelection() {
    triggerAction(Copy);
    // The engine copies in a process of its own; the clipboard tells when that is done.
    if (hasSelection()) copyLimit_.start();
}

void WebPage::startLoading() {
    arrivalLimit_.stop();
    loading_ = true;
    load_ = std::make_shared<int>();
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
        arrivalLimit_.stop();
        loading_ = isLoading();
        go(this->url(), url);
    };
    QMetaObject::invokeMethod(this, request, Qt::QueuedConnection);
}

void WebPage::finished(bool arrived) {
    if (!arrived && isOnline(target_) && !std::exchange(toldUnreachable_, true)) {
        setHtml(unreachablePage(target_), target_);
        return;
    }
    runJavaScript(leadsOnScript, QWebEngineScript::ApplicationWorld,
                  [this, load = std::weak_ptr(load_)](const QVariant& leadsOn) {
                      if (!load.expired()) settle(leadsOn.toBool());
                  });
}

void WebPage::settle(bool leadsOn) {
    if (isLoading()) return;
    if (missed()) {
        arrivalLimit_.start(missedTime);
    } else if (leadsOn) {
        arrivalLimit_.start(redirectTime);
    } else {
        arrivalLimit_.stop();
        loading_ = false;
    }
}

bool WebPage::missed() const { return !target_.isEmpty() && normalisedUrl(url()) != target_; }

void WebPage::giveUpWaiting() {
    if (missed() && tries_ > 0) {
        --tries_;
        load(target_);
        arrivalLimit_.start(missedTime);
    } else {
        loading_ = false;
    }
}

}  // namespace platform
