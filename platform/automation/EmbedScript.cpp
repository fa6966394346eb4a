#include "platform/automation/EmbedScript.h"

#include <QString>
#include <QStringList>
#include <QWebEngineScript>

namespace platform {

namespace {

/// The engine shows an EMBED as a frame only when it does not say of which type it is. It is changed as
/// soon as the parser has made it, before the engine acts on it. %1 stands for the extensions, separated
/// by "|".
constexpr auto source = QLatin1StringView(R"((() => {
    const embedded = /^[^?#]*\.(?:%1)$/i;
    const adopt = element => {
        const file = element.getAttribute('src') ?? '';
        if (!embedded.test(file)) return;
        const parameters = new URLSearchParams();
        for (const {name, value} of element.attributes) if (name !== 'src') parameters.set(name, value);
        element.removeAttribute('type');
        element.setAttribute('src', file + '?' + parameters);
    };
    new MutationObserver(changes => {
        for (const {addedNodes} of changes) {
            for (const node of addedNodes) {
                if (node.localName === 'embed') adopt(node);
                if (node.firstElementChild) node.querySelectorAll('embed').forEach(adopt);
            }
        }
    }).observe(document, {childList: true, subtree: true});
})())");

}  // namespace

QWebEngineScript embedScript(const std::vector<std::string>& extensions) {
    QStringList names;
    for (const auto& extension : extensions) names.push_back(QString::fromStdString(extension));
    QWebEngineScript script;
    script.setName(QStringLiteral("embedded files"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setSourceCode(QString(source).arg(names.join(u'|')));
    return script;
}

}  // namespace platform
