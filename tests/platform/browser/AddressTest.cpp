#include <gtest/gtest.h>

#include <QUrl>

#include "platform/browser/DosUrl.h"
#include "platform/browser/FolderAddresses.h"
#include "platform/plugins/FileType.h"
#include "platform/text/CodePage1253.h"

using namespace platform;

namespace {

TEST(Address, TurnsIntoAUrlAndBack) {
    struct Case {
        const char* address;  // UTF-8
        const char* url;
        const char* told;
    };
    const Case cases[] = {
        {"D:\\a.htm", "d://drive.invalid/a.htm", "D:\\a.htm"},
        {"c:/cache/1.htm", "c://drive.invalid/cache/1.htm", "C:\\cache\\1.htm"},
        {"D:\\Αρχείο 1.htm", "d://drive.invalid/%CE%91%CF%81%CF%87%CE%B5%CE%AF%CE%BF%201.htm",
         "D:\\Αρχείο 1.htm"},
        {"D:\\100%\\a?.htm#τέλος", "d://drive.invalid/100%25/a%3F.htm#%CF%84%CE%AD%CE%BB%CE%BF%CF%82",
         "D:\\100%\\a?.htm#τέλος"},
        {"about:blank", "about:blank", "about:blank"},
        {"http://example.org/a%20b", "http://example.org/a%20b", "http://example.org/a%20b"},
        {"", "", ""},
    };
    for (const auto& one : cases) {
        const QUrl url = urlOfAddress(fromUtf8(one.address));
        EXPECT_EQ(url.toEncoded().toStdString(), one.url) << one.address;
        EXPECT_EQ(toUtf8(addressOfUrl(url)), one.told) << one.address;
    }
}

TEST(Address, ReadsWhatPagesWrite) {
    struct Case {
        const char* url;
        const char* path;        // UTF-8; empty for none
        const char* normalised;  // the same when there is nothing to change
    };
    const Case cases[] = {
        {"d:%5Cimages%5Cx.gif", "D:\\images\\x.gif", "d://drive.invalid/images/x.gif"},
        {"d://drive.invalid/mol/x.mol?spin=true#a", "D:\\mol\\x.mol",
         "d://drive.invalid/mol/x.mol?spin=true#a"},
        // What the engine makes of `D:\images\x.gif` and `D:\a.htm`.
        {"d://images/x.gif", "D:\\images\\x.gif", "d://drive.invalid/images/x.gif"},
        {"d://disk/x.gif", "D:\\disk\\x.gif", "d://drive.invalid/disk/x.gif"},
        {"d://a.htm/", "D:\\a.htm", "d://drive.invalid/a.htm"},
        // Alpha and beta escaped as UTF-8 and as code page 1253.
        {"d:/%CE%B1%CE%B2", "D:\\αβ", "d://drive.invalid/%CE%B1%CE%B2"},
        {"d://drive.invalid/%E1%E2", "D:\\αβ", "d://drive.invalid/%E1%E2"},
        {"d:/%E4%B8%AD", "", "d://drive.invalid/%E4%B8%AD"},
        // Decoded once, then made canonical.
        {"d:/x/%23%2F..%2F../a%252e.htm", "D:\\a%2e.htm", "d://drive.invalid/x/%23%2F..%2F../a%252e.htm"},
        {"d:/../x/.//y/", "D:\\x\\y", "d://drive.invalid/../x/.//y/"},
        {"d:", "D:\\", "d://drive.invalid"},
        {"d:x", "", "d:x"},
        {"d:/x%00y", "", "d://drive.invalid/x%00y"},
        {"http://example.org/%5C", "", "http://example.org/%5C"},
    };
    for (const auto& one : cases) {
        const QUrl url = QUrl::fromEncoded(one.url);
        EXPECT_EQ(toUtf8(dosPathOfUrl(url).value_or("")), one.path) << one.url;
        EXPECT_EQ(normalisedUrl(url).toEncoded().toStdString(), one.normalised) << one.url;
    }
}

TEST(FileType, GoesByExtension) {
    EXPECT_EQ(mediaTypeOf("D:\\01\\4\\123"), "text/html");
    EXPECT_EQ(mediaTypeOf("D:\\v1.2\\page"), "text/html");
    EXPECT_EQ(mediaTypeOf("D:\\IMAGES\\X.GIF"), "image/gif");
    EXPECT_EQ(mediaTypeOf("D:\\x.exe"), "application/octet-stream");
}

TEST(FileType, IsInCodePage1253UnlessTheFirstKilobyteSaysOtherwise) {
    const std::string utf8 = "<META CONTENT=\"text/html; CharSet=utf-8\">";
    for (const std::string& head :
         {std::string("<HTML>"), std::string(1020, ' ') + utf8, std::string("<META CHARSET='Windows-1253'>"),
          std::string("<META CONTENT=\"text/html; charset= cp1253\">"), std::string("<META CHARSET="),
          std::string("<META NAME=x><SCRIPT CHARSET=utf-8 SRC=x.js></SCRIPT>")}) {
        EXPECT_TRUE(isInCodePage1253(head)) << head;
    }
    for (const std::string& head :
         {utf8, "<META NAME=x><META CHARSET=utf-8/>" + utf8, std::string("\xEF\xBB\xBF<HTML>")}) {
        EXPECT_FALSE(isInCodePage1253(head)) << head;
    }
}

// What the engine would make of "01" and of Greek letters in place of a host is no folder any more.
TEST(FolderAddresses, BecomeUrlsWhateverTheFirstFolderIsCalled) {
    EXPECT_EQ(folderUrls("<img src=\"d:\\01\\x.gif\"><a href='D:\\\xC1\\'>D:\\x</a>", {"D:\\"}),
              "<img src=\"d://drive.invalid/01\\x.gif\"><a href='d://drive.invalid/\xC1\\'>D:\\x</a>");
}

// Each change moved the rest of the page.
TEST(FolderAddresses, BecomeUrlsSoonInAPageThatIsFullOfThem) {
    constexpr std::size_t count = 500'000;
    std::string page;
    for (std::size_t i = 0; i < count; ++i) page += "\"D:\\a #\\";
    const std::string urls = folderUrls(page, {"D:\\a #\\", "C:\\"});
    EXPECT_EQ(urls.size(), page.size() + 19 * count);
    EXPECT_TRUE(urls.starts_with("\"d://drive.invalid/a%20%23/\"d:"));
}

}  // namespace
