#pragma once

#include <QWebEngineUrlSchemeHandler>
#include <string>

namespace platform {

/// Answers the engine's requests for files on the machine's drives (see DosUrl.h): the file itself, the
/// viewer page of an embedded file (see PluginTypes), or a page that says that there is none.
class DriveSchemeHandler : public QWebEngineUrlSchemeHandler {
    Q_OBJECT

  public:
    using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;

    /// Name of the request header by which RequestInterceptor marks what is shown as a page or in a frame;
    /// its value is "1".
    static constexpr const char* frameHeader = "Platform-Frame";

    void requestStarted(QWebEngineUrlRequestJob* job) override;

  private:
    /// Logs a request for what is not there. A page can make any number of them.
    void logMissing(const QUrl& url);

    int logged_ = 0;
};

}  // namespace platform
