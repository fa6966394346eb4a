#include "platform/engine/PageQuestions.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <chrono>
#include <cmath>
#include <memory>
#include <utility>

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

constexpr std::chrono::seconds answerTime{5};
/// How long a viewer may take to have a picture, and when it is asked again: before it is ready it hears
/// nothing.
constexpr std::chrono::seconds pictureTime{5};
constexpr std::chrono::milliseconds askInterval{100};
constexpr std::chrono::milliseconds paintInterval{5};
/// Letters; enough for any picture of a screen.
constexpr qsizetype maxPictureLength = qsizetype{64} << 20;

/// Pages that the engine makes itself have no such script.
const QString placesScript = QStringLiteral("globalThis.pagePlugins?.places() ?? []");

/// Questions without an answer as yet; they may nest, since each runs the event loop.
int openQuestions = 0;

/// Calls `ask` with a function that takes the answer, and waits for it.
template <class Answer, class Ask>
Answer await(Ask ask) {
    struct Wait {
        Wait() { ++openQuestions; }
        ~Wait() { end(); }
        void end() {
            if (std::exchange(open, false)) --openQuestions;
        }
        QEventLoop loop;
        Answer answer{};
        bool open = true;
    };
    // Shared with the answering function, which may be called after the time is over.
    const auto wait = std::make_shared<Wait>();
    ask([wait](const Answer& answer) {
        wait->answer = answer;
        wait->end();
        wait->loop.quit();
    });
    if (wait->open) {
        QTimer::singleShot(answerTime, &wait->loop, &QEventLoop::quit);
        wait->loop.exec();
        wait->end();
    }
    return wait->answer;
}

QVariant evaluate(QWebEnginePage& page, const QString& script) {
    return await<QVariant>(
        [&](const auto& answer) { page.runJavaScript(script, QWebEngineScript::ApplicationWorld, answer); });
}

/// The picture in the address, which any frame may have made up: only what begins as a PNG picture is one.
QByteArray pngOfDataUrl(const QString& url) {
    constexpr auto start = QLatin1StringView("data:image/png;base64,");
    if (!url.startsWith(start) || url.size() > maxPictureLength) return {};
    const QByteArray bytes = QByteArray::fromBase64(QStringView(url).sliced(start.size()).toLatin1());
    return bytes.startsWith("\x89PNG\r\n\x1A\n") ? bytes : QByteArray();
}

/// A JavaScript string literal.
QString quoted(std::string_view text) {
    const QJsonArray array{QString::fromStdString(toUtf8(text))};
    const QString json = QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    return json.mid(1, json.size() - 2);
}

/// A list of left, top, right, bottom in the page's units.
std::optional<CRect> rectangle(const QVariant& value, double scale) {
    const QVariantList sides = value.toList();
    if (sides.size() != 4) return std::nullopt;
    const auto side = [&](int i) { return static_cast<int>(std::lround(sides[i].toDouble() * scale)); };
    return CRect{side(0), side(1), side(2), side(3)};
}

std::vector<EmbeddedFrame> readFrames(const QVariant& value, double scale) {
    std::vector<EmbeddedFrame> frames;
    for (const QVariant& one : value.toList()) {
        const QVariantList numbers = one.toList();
        const auto place = rectangle(numbers.mid(1), scale);
        const auto unscaled = rectangle(numbers.mid(1), 1.0);
        if (place && unscaled) {
            frames.push_back({numbers.first().toInt(), *place, {unscaled->Width(), unscaled->Height()}});
        }
    }
    return frames;
}

}  // namespace

bool anyQuestionOpen() { return openQuestions > 0; }

QString textOf(QWebEnginePage& page) {
    return await<QString>([&](const auto& answer) { page.toPlainText(answer); });
}

QString htmlOf(QWebEnginePage& page) {
    return await<QString>([&](const auto& answer) { page.toHtml(answer); });
}

std::optional<CRect> findLinkOf(QWebEnginePage& page, std::string_view linkText) {
    // Of a link broken over lines the first line's box is taken, since the middle of the whole may be empty.
    static constexpr auto script = QLatin1StringView(
        "(() => { const link = [...document.links].find(a => a.textContent.trim() === (%1).trim());"
        "if (!link) return null;"
        "link.scrollIntoView({block: 'nearest', behavior: 'instant'});"
        "const box = link.getClientRects()[0];"
        "return box ? [box.left, box.top, box.right, box.bottom] : null; })()");
    return rectangle(evaluate(page, QString(script).arg(quoted(linkText))), page.zoomFactor());
}

std::optional<CRect> focusedLinkOf(QWebEnginePage& page) {
    static const auto script = QStringLiteral(
        "(() => { const box = document.activeElement?.closest('a')?.getClientRects()[0];"
        "return box ? [box.left, box.top, box.right, box.bottom] : null; })()");
    return rectangle(evaluate(page, script), page.zoomFactor());
}

std::vector<EmbeddedFrame> embeddedFramesOf(QWebEnginePage& page) {
    return readFrames(evaluate(page, placesScript), page.zoomFactor());
}

void askEmbeddedFramesOf(QWebEnginePage& page,
                         const std::function<void(const std::vector<EmbeddedFrame>&)>& answer) {
    page.runJavaScript(placesScript, QWebEngineScript::ApplicationWorld,
                       [answer, alive = QPointer(&page)](const QVariant& value) {
                           if (alive) answer(readFrames(value, alive->zoomFactor()));
                       });
}

QByteArray pictureOfEmbedded(QWebEnginePage& page, int number) {
    const QPointer<QWebEnginePage> alive(&page);
    const QDeadlineTimer limit(pictureTime);
    QDeadlineTimer asked;
    while (alive && !limit.hasExpired()) {
        if (asked.hasExpired()) {
            evaluate(page, QStringLiteral("globalThis.pagePlugins?.ask(%1)").arg(number));
            asked.setRemainingTime(askInterval);
            if (!alive) break;
        }
        const QString url =
            evaluate(page, QStringLiteral("globalThis.pagePlugins?.picture(%1)").arg(number)).toString();
        if (!url.isEmpty()) return pngOfDataUrl(url);
        await<bool>(
            [](const auto& answer) { QTimer::singleShot(paintInterval, [answer] { answer(true); }); });
    }
    return {};
}

}  // namespace platform
