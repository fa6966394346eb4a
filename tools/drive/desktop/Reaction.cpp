#include "tools/drive/desktop/Reaction.h"

#include <QApplication>
#include <memory>
#include <utility>

#include "tools/drive/desktop/PageFrame.h"
#include "tools/drive/script/Act.h"

namespace drive {

namespace {

/// A page that has not drawn by then does not react to the input.
constexpr std::chrono::milliseconds kReactionLimit{250};

}  // namespace

void awaitReaction(Act& act, std::function<QWidget*()> receiver) {
    const auto hold = std::make_shared<Act::Hold>(act);
    const auto behindInput = [hold, receiver = std::move(receiver)] {
        QWebEngineView* page = pageAround(receiver());
        if (page != nullptr) afterNextFrame(*page, kReactionLimit, [hold] {});
    };
    QMetaObject::invokeMethod(qApp, behindInput, Qt::QueuedConnection);
}

}  // namespace drive
