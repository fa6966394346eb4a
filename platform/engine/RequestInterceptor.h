#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace platform {

/// Sees every request of every page before it is made: lets the policy judge it, and marks those whose
/// answer is shown as a page (see DriveSchemeHandler::frameHeader).
class RequestInterceptor : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;
};

}  // namespace platform
