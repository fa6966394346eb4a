#include "platform/engine/RequestInterceptor.h"

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/RequestPolicy.h"
#include "platform/engine/DriveSchemeHandler.h"

namespace platform {

namespace {

using Type = QWebEngineUrlRequestInfo::ResourceType;

bool isShownInFrame(Type type) {
    return type == Type::ResourceTypeMainFrame || type == Type::ResourceTypeSubFrame ||
           type == Type::ResourceTypeObject || type == Type::ResourceTypePluginResource;
}

}  // namespace

void RequestInterceptor::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const Type type = info.resourceType();
    // A page's wish for another page was judged before, and is carried out by the program (see WebPage).
    const bool isProgram = type == Type::ResourceTypeMainFrame;
    const PageRequest request{isProgram ? RequestKind::program : RequestKind::part, info.firstPartyUrl(),
                              info.requestUrl()};
    if (!BrowserPolicy::instance().admit(request)) {
        info.block(true);
    } else if (isShownInFrame(type)) {
        info.setHttpHeader(DriveSchemeHandler::frameHeader, "1");
    }
}

}  // namespace platform
