#include "tools/drive/desktop/Reaction.h"

#include <QApplication>
#include <memory>
#include <utility>

#include "tools/drive/desktop/PageFrame.h"
#include "tools/drive/script/Request.h"

namespace drive {

namespace {

/// A page that has drawn nothing within this time does not react to the input.
constexpr std::chrono::milliseconds reactionLimit{250};

}  // namespace

void awaitReaction(Request& request, std::function<QWidget*()> receiver) {
    const auto hold = std::make_shared<Request::Hold>(request);
    const auto afterInput = [hold, receiver = std::move(receiver)] {
        QWebEngineView* page = pageAround(receiver());
        if (page != nullptr) afterNextFrame(*page, reactionLimit, [hold] {});
    };
    // Queued after the events of the input.
    QMetaObject::invokeMethod(qApp, afterInput, Qt::QueuedConnection);
}

}  // namespace drive
