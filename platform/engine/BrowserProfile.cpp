#include "platform/engine/BrowserProfile.h"

#include <QByteArray>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

#include "platform/engine/DriveSchemeHandler.h"
#include "platform/engine/RequestInterceptor.h"
#include "platform/qt/QtChild.h"

namespace platform {

namespace {

/// Scripts stay on: the viewer pages of embedded files are scripts, and the engine knows this switch for
/// whole pages only, not for frames. What a content page's script could do is bounded by the request
/// policy: no network, no file outside the allowed folders.
void setUp(QWebEngineSettings& settings) {
    using Settings = QWebEngineSettings;
    settings.setAttribute(Settings::JavascriptCanOpenWindows, false);
    settings.setAttribute(Settings::JavascriptCanAccessClipboard, false);
    settings.setAttribute(Settings::LocalContentCanAccessFileUrls, true);
    // Not the engine but the request policy refuses the network, since that one logs it.
    settings.setAttribute(Settings::LocalContentCanAccessRemoteUrls, true);
    settings.setAttribute(Settings::LocalStorageEnabled, false);
    settings.setAttribute(Settings::PluginsEnabled, false);
    settings.setAttribute(Settings::PdfViewerEnabled, false);
    settings.setAttribute(Settings::ErrorPageEnabled, false);
    settings.setAttribute(Settings::NavigateOnDropEnabled, false);
    // The program gives and takes the keyboard focus itself.
    settings.setAttribute(Settings::FocusOnNavigationEnabled, false);
    // Embedded videos may ask to play at once.
    settings.setAttribute(Settings::PlaybackRequiresUserGesture, false);
}

void setUp(QWebEngineProfile& profile) {
    setUp(*profile.settings());
    auto& handler = makeQtChild<DriveSchemeHandler>(&profile);
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        profile.installUrlSchemeHandler(QByteArray(1, letter), &handler);
    }
    profile.setUrlRequestInterceptor(&makeQtChild<RequestInterceptor>(&profile));
}

}  // namespace

QWebEngineProfile& browserProfile() {
    static QWebEngineProfile* const profile = [] {
        QWebEngineProfile* const made = QWebEngineProfile::defaultProfile();
        setUp(*made);
        return made;
    }();
    return *profile;
}

}  // namespace platform
