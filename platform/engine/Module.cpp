#include <QByteArray>
#include <QWebEngineUrlScheme>
#include <utility>

#include "platform/browser/EngineLibrary.h"
#include "platform/engine/WebEngine.h"

namespace {

/// The drive letters as URL schemes. The engine takes no more of them once it runs.
bool registerDriveSchemes() {
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        QWebEngineUrlScheme scheme(QByteArray(1, letter));
        scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
        scheme.setFlags(QWebEngineUrlScheme::LocalScheme | QWebEngineUrlScheme::LocalAccessAllowed |
                        QWebEngineUrlScheme::CorsEnabled);
        QWebEngineUrlScheme::registerScheme(scheme);
    }
    return true;
}

}  // namespace

/// The library's one function, see EngineLibrary.h. The caller owns what it makes.
extern "C" platform::BrowserEngine* kalyxoMakeEngine(QWidget* parent,
                                                     platform::BrowserEngine::Questions questions) {
    [[maybe_unused]] static const bool registered = registerDriveSchemes();
    return std::make_unique<platform::WebEngine>(parent, std::move(questions)).release();
}
