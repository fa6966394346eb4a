#include "platform/engine/LinkClick.h"

#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <chrono>
#include <utility>

namespace platform {

namespace {

constexpr int maxTries = 5;
constexpr std::chrono::seconds clickTime{1};
constexpr std::chrono::milliseconds linkInterval{5};

constexpr auto armScript = QLatin1StringView(
    "window.awaitsClick = true;"
    "addEventListener('click', () => { window.awaitsClick = false; }, {capture: true, once: true});");
/// True in the next page as well: a page that was left has handled its click.
constexpr auto handledScript = QLatin1StringView("window.awaitsClick !== true");

}  // namespace

LinkClick::LinkClick(QWebEnginePage& page, std::function<void()> click)
    : page_(page), click_(std::move(click)), tries_(maxTries) {
    arm();
}

void LinkClick::arm() {
    page_.runJavaScript(armScript, QWebEngineScript::ApplicationWorld,
                        [self = QPointer<LinkClick>(this)](const QVariant&) {
                            if (self) self->tryOnce();
                        });
}

void LinkClick::tryOnce() {
    limit_.setRemainingTime(clickTime);
    const QPointer<LinkClick> self(this);
    click_();
    if (self) look();
}

void LinkClick::look() {
    page_.runJavaScript(handledScript, QWebEngineScript::ApplicationWorld,
                        [self = QPointer<LinkClick>(this)](const QVariant& handled) {
                            if (!self) return;
                            if (handled.toBool()) {
                                self->tries_ = 0;
                            } else if (!self->limit_.hasExpired()) {
                                QTimer::singleShot(linkInterval, self, &LinkClick::look);
                            } else if (--self->tries_ > 0) {
                                self->tryOnce();
                            }
                        });
}

}  // namespace platform
