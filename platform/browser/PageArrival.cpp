#include "platform/browser/PageArrival.h"

#include <QWebEnginePage>
#include <QWebEngineScript>
#include <chrono>

#include "platform/browser/DosUrl.h"

namespace platform {

namespace {

/// How long a page that says it leads on to another may take to do so.
constexpr std::chrono::seconds redirectTime{2};
/// How long the last of several quick loads may stay away after an earlier one came, before it is asked for
/// again: the engine may lose a load that begins while it hands over the page of another.
constexpr std::chrono::milliseconds missedTime{500};
constexpr int missedTries = 3;
/// How long a page out of sight may take.
constexpr std::chrono::seconds unseenTime{2};

/// Whether the page refreshes itself within a second.
constexpr auto leadsOnScript = QLatin1StringView(
    "[...document.querySelectorAll('meta[http-equiv=refresh i]')]"
    ".some(m => parseFloat(m.content) < 1 && /url/i.test(m.content))");

}  // namespace

PageArrival::PageArrival(QWebEnginePage& page) : page_(page) {
    limit_.setSingleShot(true);
    connect(&limit_, &QTimer::timeout, this, &PageArrival::giveUp);
    connect(&page, &QWebEnginePage::renderProcessTerminated, this, [this] { pending_ = false; });
}

void PageArrival::load(const QUrl& target) {
    begin();
    tries_ = missedTries;
    target_ = target;
    page_.load(target_);
}

void PageArrival::reload() {
    begin();
    page_.triggerAction(QWebEnginePage::Reload);
}

void PageArrival::begin() {
    limit_.stop();
    pending_ = true;
    begun_.start();
    load_ = std::make_shared<int>();
}

bool PageArrival::pending() const {
    return pending_ &&
           (page_.isVisible() || !begun_.hasExpired(std::chrono::milliseconds(unseenTime).count()));
}

void PageArrival::interrupt() {
    limit_.stop();
    pending_ = page_.isLoading();
}

void PageArrival::look() {
    page_.runJavaScript(leadsOnScript, QWebEngineScript::ApplicationWorld,
                        [this, load = std::weak_ptr(load_)](const QVariant& leadsOn) {
                            if (!load.expired()) settle(leadsOn.toBool());
                        });
}

void PageArrival::settle(bool leadsOn) {
    if (page_.isLoading()) return;
    if (missed()) {
        limit_.start(missedTime);
    } else if (leadsOn) {
        limit_.start(redirectTime);
    } else {
        limit_.stop();
        pending_ = false;
    }
}

bool PageArrival::missed() const { return !target_.isEmpty() && normalisedUrl(page_.url()) != target_; }

void PageArrival::giveUp() {
    if (missed() && tries_ > 0) {
        --tries_;
        page_.load(target_);
        limit_.start(missedTime);
    } else {
        pending_ = false;
    }
}

}  // namespace platform
