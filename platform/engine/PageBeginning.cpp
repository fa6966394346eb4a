#include "platform/engine/PageBeginning.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// %1 is how far the page is scrolled, %2 the list of words. The page is hidden until it is in its place,
/// which may need its modules' work; what loads later may move it, but then the user may have moved it too.
/// Words are compared without regard to case and accents, and marked where they stand alone.
constexpr auto beginningScript = QLatin1StringView(R"((() => {
    const scrolled = %1, words = %2;
    if (!scrolled && !words.length) return;
    const seen = visibility => { document.documentElement.style.visibility = visibility; };
    new MutationObserver((changes, hiding) => {
        hiding.disconnect();
        if (document.readyState === 'loading') seen('hidden');
    }).observe(document, {childList: true});
    const plain = text => text.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase().replaceAll('\u03c2', '\u03c3');
    const wanted = new Set(words.map(plain));
    const found = () => {
        const ranges = [];
        const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        while (wanted.size && texts.nextNode()) {
            const node = texts.currentNode;
            if (node.parentElement.closest('script, style')) continue;
            for (const {0: word, index} of node.data.matchAll(/[\p{L}\p{M}\p{N}]+/gu)) {
                if (!wanted.has(plain(word))) continue;
                const range = new Range();
                range.setStart(node, index);
                range.setEnd(node, index + word.length);
                ranges.push(range);
            }
        }
        return ranges;
    };
    const mark = range => {
        const marked = document.createElement('mark');
        marked.dataset.found = '';
        marked.style = 'background: #ffe08a; color: inherit;';
        range.surroundContents(marked);
        return marked;
    };
    let first = null, at = 0;
    const place = () => {
        const top = first ? scrollY + first.getBoundingClientRect().top - innerHeight / 3 : scrolled;
        scrollTo({top, behavior: 'instant'});
        at = scrollY;
    };
    addEventListener('DOMContentLoaded', () => {
        try {
            first = found().map(mark)[0];
            place();
        } finally {
            seen('');
        }
    }, {once: true});
    addEventListener('load', () => { if (scrollY === at) place(); }, {once: true});
})())");

QString listOf(const std::vector<std::string>& words) {
    QJsonArray list;
    for (const std::string& word : words) list.append(QString::fromStdString(toUtf8(word)));
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

}  // namespace

QWebEngineScript pageBeginning(const PageStart& start) {
    QWebEngineScript script;
    script.setName(QStringLiteral("page beginning"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setSourceCode(QString(beginningScript).arg(QString::number(start.scrolled), listOf(start.marked)));
    return script;
}

QString unmarkScript() {
    return QStringLiteral(
        "for (const marked of document.querySelectorAll('mark[data-found]')) {"
        "const around = marked.parentNode;"
        "marked.replaceWith(...marked.childNodes);"
        "around.normalize(); }");
}

}  // namespace platform
