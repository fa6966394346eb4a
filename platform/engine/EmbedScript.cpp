#include "platform/engine/EmbedScript.h"

#include <QString>
#include <QStringList>
#include <QWebEngineScript>

namespace platform {

namespace {

/// The engine shows an EMBED as a frame only when it does not say of which type it is. Elements are changed
/// as soon as the parser has made them, before the engine acts on them. %1 stands for the extensions,
/// separated by "|".
constexpr auto source = QLatin1StringView(R"((() => {
    const embedded = /^[^?#]*\.(?:%1)$/i;
    const ofClass = /^clsid:([0-9a-f-]{36})$/i;
    const pictures = new Map();
    let plugins = 0;
    const attributesOf = (element, without) => {
        const parameters = new URLSearchParams();
        for (const {name, value} of element.attributes) if (name !== without) parameters.set(name, value);
        return parameters;
    };
    const adoptFile = element => {
        const file = element.getAttribute('src') ?? '';
        if (element.dataset.plugin || !embedded.test(file)) return;
        const parameters = attributesOf(element, 'src');
        element.dataset.plugin = ++plugins;
        parameters.set('plugin', plugins);
        element.setAttribute('type', 'text/html');
        element.setAttribute('src', file + '?' + parameters);
    };
    const adoptComponent = element => {
        const found = ofClass.exec(element.getAttribute('classid') ?? '');
        if (!found) return;
        const parameters = attributesOf(element, 'classid');
        parameters.set('component', found[1]);
        const frame = document.createElement('iframe');
        for (const name of ['width', 'height', 'align', 'style', 'title']) {
            if (element.hasAttribute(name)) frame.setAttribute(name, element.getAttribute(name));
        }
        frame.setAttribute('frameborder', '0');
        frame.setAttribute('scrolling', 'no');
        frame.src = location.pathname + '?' + parameters;
        element.replaceWith(frame);
    };
    const adopt = element => {
        if (element.localName === 'embed') adoptFile(element);
        if (element.localName === 'object') adoptComponent(element);
    };
    new MutationObserver(changes => {
        for (const {addedNodes} of changes) {
            for (const node of addedNodes) {
                if (node.nodeType !== Node.ELEMENT_NODE) continue;
                adopt(node);
                node.querySelectorAll('embed, object').forEach(adopt);
            }
        }
    }).observe(document, {childList: true, subtree: true});
    addEventListener('message', ({data}) => {
        if (data?.pluginPicture && data.picture) pictures.set(data.pluginPicture, data.picture);
    });
    window.pagePlugins = {
        places: () => [...document.querySelectorAll('embed[data-plugin]')].map(element => {
            const {left, top, right, bottom} = element.getBoundingClientRect();
            return [Number(element.dataset.plugin), left, top, right, bottom];
        }),
        ask: plugin => {
            pictures.delete(plugin);
            for (let i = 0; i < window.length; ++i) window[i].postMessage({pluginPicture: plugin}, '*');
        },
        picture: plugin => pictures.get(plugin) ?? null,
    };
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
