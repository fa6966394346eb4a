#include "platform/browser/RequestInterceptor.h"

#include <QUrl>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/DosUrl.h"
#include "platform/browser/DriveSchemeHandler.h"

namespace platform {

void RequestInterceptor::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const auto type = info.resourceType();
    const bool isPage = type == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
    // The page that asked for another page has judged that request itself, and is not told here.
    const std::string page = isPage ? std::string() : addressOfUrl(info.firstPartyUrl());
    if (!BrowserPolicy::instance().admit(page, addressOfUrl(info.requestUrl()))) {
        info.block(true);
    } else if (isPage || type == QWebEngineUrlRequestInfo::ResourceTypeSubFrame ||
               type == QWebEngineUrlRequestInfo::ResourceTypeObject ||
               type == QWebEngineUrlRequestInfo::ResourceTypePluginResource) {
        info.setHttpHeader(DriveSchemeHandler::frameHeader, "1");
    }
}

}  // namespace platform
