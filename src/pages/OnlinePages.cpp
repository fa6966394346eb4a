#include "src/pages/OnlinePages.h"

namespace kalyxo {

namespace {

std::string address(std::string_view host, std::string_view path) {
    return host.empty() ? std::string() : std::string("https://").append(host).append(path);
}

}  // namespace

std::string OnlineAddress(OnlinePage page, std::string_view productHost, std::string_view makerHost) {
    switch (page) {
        case OnlinePage::support:
            return address(makerHost, "/misc/go_where.asp?redirect=support");
        case OnlinePage::products:
            return address(makerHost, "/misc/go_where.asp?redirect=products");
        case OnlinePage::product:
            break;
    }
    return address(productHost, "/");
}

}  // namespace kalyxo
