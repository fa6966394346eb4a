#include "platform/automation/WebPage.h"

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QMetaObject>
#include <QPointer>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <chrono>
#include <utility>

#include "platform/automation/BrowserPolicy.h"
#include "platform/automation/BrowserProfile.h"
#include "platform/automation/DosUrl.h"

namespace platform {

namespace {

/// How long a page that says it leads on to another may take to do so.
constexpr std::chrono::seconds redirectTime{2};
/// How long a copy may take to arrive.
constexpr std::chrono::milliseconds copyTime{500};

/// Whether the page refreshes itself within a second.
constexpr auto leadsOnScript = QLatin1StringView(
    "[...document.querySelectorAll('meta[http-equiv=refresh i]')]"
    ".some(m => parseFloat(m.content) < 1 && /url/i.test(m.content))");

}  // namespace

WebPage::WebPage(Gate gate, QObject* parent)
    : QWebEnginePage(&browserProfile(), parent), gate_(std::move(gate)) {
    setBackgroundColor(Qt::white);
    redirectLimit_.setSingleShot(true);
    redirectLimit_.setInterval(redirectTime);
    copyLimit_.setSingleShot(true);
    copyLimit_.setInterval(copyTime);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &copyLimit_, &QTimer::stop);
    connect(&redirectLimit_, &QTimer::timeout, this, [this] { loading_ = false; });
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
    if (!alive || !passed) return;
    startLoading();
    target_ = target;
    load(target);
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
    redirectLimit_.stop();
    loading_ = true;
    load_ = std::make_shared<int>();
}

bool WebPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    if (!isMainFrame) return BrowserPolicy::instance().admit(addressOfUrl(this->url()), addressOfUrl(url));
    // `load` and `reload` are ours.
    if (type == NavigationTypeTyped || type == NavigationTypeReload) return true;
    requestLater(url);
    return false;
}

void WebPage::requestLater(const QUrl& url) {
    ++waiting_;
    const auto request = [this, url] {
        --waiting_;
        redirectLimit_.stop();
        loading_ = isLoading();
        go(this->url(), url);
    };
    QMetaObject::invokeMethod(this, request, Qt::QueuedConnection);
}

void WebPage::finished() {
    runJavaScript(leadsOnScript, QWebEngineScript::ApplicationWorld,
                  [this, load = std::weak_ptr(load_)](const QVariant& leadsOn) {
                      if (!load.expired()) settle(leadsOn.toBool());
                  });
}

void WebPage::settle(bool leadsOn) {
    if (isLoading()) return;
    // The end of an earlier load may be told after a later one was asked for.
    const bool isEarlier = !target_.isEmpty() && normalisedUrl(url()) != target_;
    if (leadsOn || isEarlier) {
        redirectLimit_.start();
    } else {
        redirectLimit_.stop();
        loading_ = false;
    }
}

}  // namespace platform
