#include "platform/engine/ContentLimits.h"

#include <QString>
#include <QWebEngineScript>

namespace platform {

namespace {

constexpr auto limitsScript = QLatin1StringView(R"((() => {
    for (const name of ['RTCPeerConnection', 'webkitRTCPeerConnection', 'WebTransport']) delete window[name];
    delete Navigator.prototype.clipboard;
    const {execCommand} = Document.prototype;
    Document.prototype.execCommand = function(command, ...rest) {
        return /^(copy|cut)$/i.test(command = String(command)) ? false : execCommand.call(this, command, ...rest);
    };
})())");

}  // namespace

QWebEngineScript contentLimits() {
    QWebEngineScript script;
    script.setName(QStringLiteral("content limits"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(limitsScript);
    return script;
}

}  // namespace platform
