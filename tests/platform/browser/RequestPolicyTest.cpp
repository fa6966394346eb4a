#include "platform/browser/RequestPolicy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

#include "platform/browser/BrowserPolicy.h"

using namespace platform;

namespace {

constexpr auto program = RequestKind::program;
constexpr auto mainPage = RequestKind::mainPage;
constexpr auto part = RequestKind::part;

constexpr const char* cached = "c:/Kalyxo/cache/1.htm";
constexpr const char* online = "https://orvane.example/a";

struct Case {
    RequestKind kind;
    const char* page;
    const char* address;
    bool allowed;
};

// The data folder is D:, and pages are prepared in C:\Kalyxo\cache. All addresses are as the engine tells
// them.
constexpr Case cases[] = {
    // What content needs.
    {program, "", cached, true},
    {program, "", "about:blank", true},
    {program, "", "data:text/html,x", true},
    {part, cached, "d:/images/x.gif", true},
    {part, cached, "d:/IMAGES/x.gif?raw#top", true},
    {part, cached, "c:/Kalyxo/cache/chime.mol?spin=true", true},
    {part, cached, "c:/Kalyxo/x/../cache/2.htm", true},
    {part, cached, "d:/%CE%B1%3F%23.gif", true},
    {part, "d:/a.htm", "data:image/png;base64,AA==", true},
    {part, "d:/a.htm", "blob:d:/1", true},
    {mainPage, cached, "d:/a.htm", true},
    {mainPage, cached, "about:blank", true},
    // Files elsewhere, by any spelling.
    {program, "", "c:/Kalyxo/kalyxo.exe", false},
    {program, "", "c:/Kalyxo/cache2/1.htm", false},
    {program, "", "z:/etc/passwd", false},
    {mainPage, cached, "z:/etc/passwd", false},
    {part, cached, "z:/etc/passwd", false},
    {part, cached, "c:/Kalyxo/cache/../cset.ini", false},
    {part, cached, "c:/Kalyxo/cache/..%5C..%5Ccset.ini", false},
    {part, cached, "c:/Kalyxo/cache/%2E%2E/cset.ini", false},
    {part, cached, "c:/Kalyxo/cache/%23%2F..%2F..%2Fcset.ini", false},
    {part, cached, "c:/Kalyxo/cache/%3F%2F..%2F..%2Fcset.ini", false},
    {part, cached, "c:/Kalyxo/cache/%3Fx%2F..%2F..%2Fcset.ini?raw", false},
    {part, cached, "c:/Kalyxo/cache/..%00/cset.ini", false},
    {part, cached, "c:cset.ini", false},
    {part, cached, "d:x.gif", false},
    {part, cached, "d:/%E4%B8%AD.gif", false},  // no name of this code page
    {part, cached, "file:///etc/passwd", false},
    {part, cached, "file:///d:/a.htm", false},
    {part, cached, "filesystem:d:/temporary/x", false},
    {part, cached, "qrc:/plugins/video.html", false},
    {part, cached, "chrome://version/", false},
    {part, cached, "view-source:d:/a.htm", false},
    {part, cached, "", false},
    // Askers that may not.
    {part, "", "d:/a.htm", false},  // a worker, whose page the engine does not tell
    {part, "", online, false},
    {part, "", "data:,x", false},
    {part, "about:blank", "d:/a.htm", false},
    {part, "c:/other/1.htm", "d:/a.htm", false},
    {part, "c:/x.htm", "data:image/png;base64,AA==", false},
    {part, "data:text/html,x", "d:/a.htm", false},
    {part, "http://example.org/", "d:/a.htm", false},
    {mainPage, "d:/a.htm", "data:text/html,x", false},
    {mainPage, "d:/a.htm", "javascript:alert(1)", false},
    {mainPage, "d:/a.htm", "mailto:a@orvane.example", false},
    // The network.
    {program, "", "https://orvane.example/misc/go_where.asp?redirect=support", true},
    {program, "", "HTTP://Orvane.Example:8080", true},
    {part, online, "https://orvane.example/style.css", true},
    {mainPage, online, "https://orvane.example/b", true},
    {part, "d:/a.htm", online, false},
    {mainPage, "d:/a.htm", online, false},
    {part, online, "d:/a.htm", false},
    {mainPage, online, "https://other.example/", false},
    {program, "", "https://example.org/", false},
    {program, "", "https://orvane.example.other.example/", false},
    {program, "", "https://orvane.example@other.example/", false},
    {program, "", "https://other.example/@orvane.example", false},
    {program, "", "https:///", false},
    {program, "", "ftp://orvane.example/", false},
    {part, "d:/a.htm", "ws://orvane.example/", false},
    {part, "d:/a.htm", "http://127.0.0.1:80/x.gif", false},
};

TEST(RequestPolicy, AllowsWhatContentNeedsAndNothingElse) {
    RequestPolicy policy;
    policy.setAllowedFolders({"D:\\", "C:\\Kalyxo\\cache\\"});
    policy.setAllowedHosts({"orvane.example", ""});
    for (const auto& [kind, page, address, allowed] : cases) {
        EXPECT_EQ(policy.allows({kind, QUrl(page), QUrl(address)}), allowed)
            << (kind == program ? "the program" : page) << " asks for " << address;
    }
}

TEST(RequestPolicy, SaysWhyItRefuses) {
    RequestPolicy policy;
    policy.setAllowedFolders({"D:\\"});
    policy.setAllowedHosts({"orvane.example"});
    const auto why = [&policy](RequestKind kind, const char* page, const char* address) {
        return policy.whyRefused({kind, QUrl(page), QUrl(address)});
    };
    EXPECT_EQ(why(part, "d:/a.htm", "z:/b.gif"), "it is in no allowed folder");
    EXPECT_EQ(why(program, "", "https://other.example/"), "its host is not allowed");
    EXPECT_EQ(why(part, "z:/a.htm", "d:/b.gif"), "the page that asks comes from elsewhere");
    EXPECT_EQ(why(mainPage, "d:/a.htm", "data:text/html,x"), "inline data may only be a part of a page");
}

TEST(RequestPolicy, AllowsNothingBeforeItIsTold) {
    RequestPolicy policy;
    // As when the data folder has no name.
    policy.setAllowedFolders({""});
    EXPECT_FALSE(policy.allows({program, {}, QUrl("d:/a.htm")}));
    EXPECT_FALSE(policy.allows({part, QUrl(cached), QUrl("d:/a.htm")}));
    EXPECT_FALSE(policy.allows({program, {}, QUrl(online)}));
}

std::vector<QString> refusals;

void noteRefusal(QtMsgType, const QMessageLogContext&, const QString& line) {
    if (line.contains(QLatin1StringView("efus"))) refusals.push_back(line);
}

TEST(BrowserPolicy, LogsEachRefusalOnceAndNotMoreThanSomeHundred) {
    refusals.clear();
    const QtMessageHandler before = qInstallMessageHandler(&noteRefusal);
    BrowserPolicy& policy = BrowserPolicy::instance();
    const auto refuse = [&policy](const QString& address) {
        EXPECT_FALSE(policy.admit({part, QUrl(cached), QUrl(address)}));
    };
    for (int i = 0; i < 3; ++i) refuse(QStringLiteral("z:/once.txt"));
    EXPECT_EQ(std::ranges::count(refusals, QStringLiteral("Refused: Z:\\once.txt, asked for by "
                                                          "C:\\Kalyxo\\cache\\1.htm, since it is in no "
                                                          "allowed folder")),
              1);
    for (int i = 0; i < 1000; ++i) refuse(QStringLiteral("z:/%1.txt").arg(i));
    qInstallMessageHandler(before);
    EXPECT_LE(refusals.size(), 201U);
    EXPECT_EQ(refusals.back(), QStringLiteral("Further refusals are not shown."));
}

}  // namespace
