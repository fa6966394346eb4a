#include "platform/engine/PageArrival.h"

#include <csignal>

#include <QWebEnginePage>
#include <QWebEngineScript>
#include <chrono>
#include <utility>

#include "platform/browser/DosUrl.h"

namespace platform {

namespace {

/// How long a page may take to lead on to another, when it says that it does.
constexpr std::chrono::seconds redirectTime{2};
/// The engine may lose a load that is asked for while it hands over the page of an earlier one. The load is
/// asked for again when its page has not come this long after the earlier one.
constexpr std::chrono::milliseconds missedTime{500};
constexpr int missedTries = 3;
/// How long a page may take to begin until it is asked whether the former one lets it, and how long the
/// answer may take.
constexpr std::chrono::milliseconds timeToBegin{1500};
constexpr std::chrono::seconds timeToAnswer{3};
/// What the engine tells before it has heard anything of the page, in percent.
constexpr int progressBeforeBegin = 10;
/// How long a page out of sight may take.
constexpr std::chrono::seconds unseenTime{2};

/// When a page that is not complete is looked at again. The engine may tell the end of a load late, when the
/// next page has already begun.
constexpr std::chrono::milliseconds timeToComplete{10};

/// Whether the page refreshes itself within a second; 'later' while it is not complete.
constexpr auto leadsOnScript = QLatin1StringView(
    "document.readyState !== 'complete' ? 'later' :"
    "[...document.querySelectorAll('meta[http-equiv=refresh i]')]"
    ".some(m => parseFloat(m.content) < 1 && /url/i.test(m.content))");

}  // namespace

PageArrival::PageArrival(QWebEnginePage& page, std::function<void()> goOnElsewhere)
    : page_(page), goOnElsewhere_(std::move(goOnElsewhere)) {
    for (QTimer* timer : {&limit_, &begin_, &life_, &complete_}) timer->setSingleShot(true);
    connect(&complete_, &QTimer::timeout, this, &PageArrival::look);
    connect(&limit_, &QTimer::timeout, this, &PageArrival::giveUp);
    connect(&begin_, &QTimer::timeout, this, &PageArrival::askForLife);
    connect(&life_, &QTimer::timeout, this, &PageArrival::endFormerPage);
    connect(&page, &QWebEnginePage::renderProcessTerminated, this, &PageArrival::pageEnded);
    connect(&page, &QWebEnginePage::urlChanged, &begin_, &QTimer::stop);
    connect(&page, &QWebEnginePage::loadProgress, this, [this](int percent) {
        if (percent > progressBeforeBegin) begin_.stop();
    });
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
    complete_.stop();
    pending_ = true;
    begun_.start();
    ended_ = false;
    life_.stop();
    // Only a page that is on show can hold another back, and before the first load there is none.
    if (!page_.url().isEmpty()) begin_.start(timeToBegin);
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
                            if (load.expired()) return;
                            if (leadsOn == QVariant(QStringLiteral("later"))) {
                                complete_.start(timeToComplete);
                            } else {
                                settle(leadsOn.toBool());
                            }
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

/// A page begins in the process that shows the former one. A slow medium is no reason to end that process,
/// only that it has stopped answering.
void PageArrival::askForLife() {
    if (!pending_) return;
    life_.start(timeToAnswer);
    page_.runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                        [this, load = std::weak_ptr(load_)](const QVariant&) {
                            if (load.expired()) return;
                            life_.stop();
                            if (pending_ && !ended_) begin_.start(timeToBegin);
                        });
}

void PageArrival::endFormerPage() {
    const auto process = static_cast<pid_t>(page_.renderProcessPid());
    if (process <= 0) return;
    ended_ = true;
    qWarning("A page let no other begin; its process is ended.");
    ::kill(process, SIGKILL);
}

void PageArrival::pageEnded() {
    if (pending_ && (ended_ || begin_.isActive())) {
        goOnElsewhere_();
    } else {
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
