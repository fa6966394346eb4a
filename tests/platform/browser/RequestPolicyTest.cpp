#include "platform/browser/RequestPolicy.h"

#include <gtest/gtest.h>

using platform::RequestPolicy;

namespace {

struct Case {
    const char* page;
    const char* request;
    bool allowed;
};

void check(const RequestPolicy& policy, std::initializer_list<Case> cases) {
    for (const auto& one : cases) {
        EXPECT_EQ(policy.allows(one.page, one.request), one.allowed)
            << one.page << " asks for " << one.request;
    }
}

TEST(RequestPolicy, AllowsEveryDriveAndNoNetworkAtFirst) {
    check(RequestPolicy(), {
                               {"", "D:\\a.htm", true},
                               {"C:\\Kalyxo\\cache\\1.htm", "z:/home/x.gif", true},
                               {"C:\\Kalyxo\\cache\\1.htm", "http://example.org/x.gif", false},
                               {"", "https://example.org/", false},
                               {"", "about:blank", true},
                           });
}

TEST(RequestPolicy, KeepsPagesToTheAllowedFolders) {
    RequestPolicy policy;
    policy.setAllowedFolders({"D:\\", "C:\\Kalyxo\\cache\\"});
    const char* const cached = "C:\\Kalyxo\\cache\\1.htm";
    check(policy, {
                      {"", cached, true},
                      {"", "c:/KALYXO/Cache/1.htm?spin=true#top", true},
                      {"", "C:\\Kalyxo\\kalyxo.exe", false},
                      {"", "C:\\Kalyxo\\cache2\\1.htm", false},
                      {cached, "D:\\images\\x.gif", true},
                      {"D:\\a.htm", "chime.mol", false},
                      {cached, "C:\\Kalyxo\\cache\\..\\kalyxo.exe", false},
                      {cached, "C:\\Kalyxo\\x\\..\\cache\\2.htm", true},
                      {cached, "Z:\\etc\\passwd", false},
                      {cached, "file:///etc/passwd", false},
                      {cached, "javascript:alert(1)", false},
                      {cached, "ws://example.org/", false},
                      {cached, "", false},
                      {"C:\\other\\1.htm", "D:\\a.htm", false},
                      {"http://example.org/", "D:\\a.htm", false},
                      {"about:blank", "D:\\a.htm", true},
                  });
}

TEST(RequestPolicy, AllowsInlineDataToPagesOfTheFolders) {
    RequestPolicy policy;
    policy.setAllowedFolders({"D:\\"});
    check(policy, {
                      {"D:\\a.htm", "data:image/png;base64,AA==", true},
                      {"D:\\a.htm", "blob:d:/1", true},
                      {"", "data:text/html,x", true},
                      {"data:text/html,x", "D:\\a.htm", false},
                      {"C:\\x.htm", "data:image/png;base64,AA==", false},
                  });
}

TEST(RequestPolicy, LetsOnlyTheProgramAndPagesOfAllowedHostsReachThem) {
    RequestPolicy policy;
    policy.setAllowedFolders({"D:\\"});
    policy.setAllowedHosts({"orvane.example", ""});
    check(policy, {
                      {"", "https://orvane.example/misc/go_where.asp?redirect=support", true},
                      {"", "HTTP://Orvane.Example:8080", true},
                      {"https://orvane.example/a", "https://orvane.example/style.css", true},
                      {"D:\\a.htm", "https://orvane.example/", false},
                      {"https://orvane.example/a", "D:\\a.htm", false},
                      {"https://orvane.example/a", "https://other.example/", false},
                      {"", "https://orvane.example.other.example/", false},
                      {"", "https://orvane.example@other.example/", false},
                      {"", "https:///", false},
                      {"", "ftp://orvane.example/", false},
                  });
}

}  // namespace
