#include "platform/registry/RegFile.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/text/GreekLiteral.h"
#include "tests/support/TestFolder.h"

namespace platform {
namespace {

const std::string header = "Windows Registry Editor Version 5.00\r\n\r\n";

std::string asUtf16(std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string errorOf(std::string_view bytes) { return parseRegText(bytes, "r.reg").message(); }

/// The value's text as it would be written, after the equals sign.
std::string dataOf(const std::string& value) {
    const auto loaded = parseRegText(header + "[HKEY_USERS\\K]\r\n\"v\"=" + value, "r.reg");
    if (!loaded) return loaded.message();
    const std::string text = formatRegText(*loaded);
    const std::size_t start = text.find("\"v\"=");
    return start == text.npos ? "(none)" : text.substr(start + 4, text.size() - start - 6);
}

TEST(RegFile, IsWrittenInTheStandardFormAndReadBack) {
    const TestFolder folder;
    Registry registry;
    auto key = registry.createKey(HKEY_LOCAL_MACHINE, "Software\\Key [2]");
    key->setString(R"(a "quoted" \ name)", "C:\\\"x\"\\\r\nsecond line\\");
    key->setDword("Left", 0x8000001F);
    registry.createKey(HKEY_CLASSES_ROOT, "CLSID")->setString("", "Ω"_gr);
    ASSERT_TRUE(saveRegFile(registry, folder / "r.reg"));
    EXPECT_EQ(folder.read("r.reg"),
              header +
                  "[HKEY_CLASSES_ROOT]\r\n\r\n"
                  "[HKEY_CLASSES_ROOT\\CLSID]\r\n@=\"Ω\"\r\n\r\n"
                  "[HKEY_LOCAL_MACHINE]\r\n\r\n"
                  "[HKEY_LOCAL_MACHINE\\Software]\r\n\r\n"
                  "[HKEY_LOCAL_MACHINE\\Software\\Key [2]]\r\n"
                  "\"a \\\"quoted\\\" \\\\ name\"=\"C:\\\\\\\"x\\\"\\\\\r\nsecond line\\\\\"\r\n"
                  "\"Left\"=dword:8000001f\r\n");
    auto loaded = loadRegFile(folder / "r.reg");
    ASSERT_TRUE(loaded) << loaded.message();
    EXPECT_EQ(formatRegText(*loaded), folder.read("r.reg"));
}

TEST(RegFile, EveryEncodingIsRead) {
    const std::string utf8 = header + "[HKEY_LOCAL_MACHINE\\Κλειδί]\r\n\"x\"=\"Δομές 😀\"\r\n";
    const std::u16string utf16 =
        u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\Κλειδί]\r\n"
        u"\"x\"=\"Δομές 😀\"\r\n";
    for (const auto& bytes : {utf8, "\xEF\xBB\xBF" + utf8, asUtf16(utf16)}) {
        auto loaded = parseRegText(bytes, "r.reg");
        ASSERT_TRUE(loaded) << loaded.message();
        EXPECT_EQ(loaded->openKey(HKEY_LOCAL_MACHINE, "κλειδί"_gr)->queryString("x", 99), "Δομές ?"_gr);
        EXPECT_NE(formatRegText(*loaded).find("Δομές 😀"), std::string::npos);  // nothing is lost
    }
}

TEST(RegFile, OtherValueTypesAreKept) {
    const std::pair<const char*, const char*> cases[] = {
        {"\"text\"", "\"text\""},
        {R"(  "a\\b\"c\d"  ; comment)", R"("a\\b\"c\\d")"},
        {"dword:1F", "dword:0000001f"},
        {"dword:ffffffff", "dword:ffffffff"},
        {"hex:", "hex:"},
        {"hex:41,00", "hex:41,00"},
        {"hex(2):41,00,\\\r\n  42,00,\\\r\n  00,00\r\n", "hex(2):41,00,42,00,00,00"},
        {"hex(b):00,01", "hex(b):00,01"},
        {"-", "(none)"},
    };
    for (const auto& [value, expected] : cases) EXPECT_EQ(dataOf(value), expected) << value;
    auto loaded = parseRegText(header + "[HKEY_LOCAL_MACHINE\\K]\n\"v\"=hex(2):41,00\n", "r.reg");
    EXPECT_EQ(loaded->openKey(HKEY_LOCAL_MACHINE, "K")->queryString("v", 99), std::nullopt);
}

TEST(RegFile, KeysAreMergedAndTakenAway) {
    auto loaded =
        parseRegText(header +
                         "; a comment\n[HKEY_LOCAL_MACHINE\\A]\n\"x\"=dword:1\n\"y\"=dword:2\n\n"
                         "[hkey_local_machine\\a\\B]\n[HKEY_LOCAL_MACHINE\\C\\D]\n"
                         "[HKEY_LOCAL_MACHINE\\a]\n\"X\"=dword:3\n\"Y\"=-\n[-HKEY_LOCAL_MACHINE\\c]",
                     "r.reg");
    ASSERT_TRUE(loaded) << loaded.message();
    const auto key = loaded->openKey(HKEY_LOCAL_MACHINE, "A");
    EXPECT_EQ(key->queryDword("x"), 3U);
    EXPECT_EQ(key->queryDword("y"), std::nullopt);
    EXPECT_TRUE(loaded->openKey(HKEY_LOCAL_MACHINE, "A\\B"));
    EXPECT_FALSE(loaded->openKey(HKEY_LOCAL_MACHINE, "C"));
}

TEST(RegFile, DamageIsToldWithFileAndLine) {
    std::string deep = "[HKEY_LOCAL_MACHINE";
    for (int i = 0; i < 100000; ++i) deep += "\\a";
    const std::string key = header + "[HKEY_LOCAL_MACHINE\\A]\r\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", "r.reg, γραμμή 1"},
        {"REGEDIT4\r\n", "r.reg, γραμμή 1"},
        {std::string(100, '\0'), "r.reg, γραμμή 1"},
        {header + "\"x\"=dword:1\r\n", "r.reg, γραμμή 3: η τιμή δεν ανήκει"},
        {header + "[HKEY_LOCAL_MACHINE\\A\r\n", "r.reg, γραμμή 3: από το κλειδί λείπει"},
        {header + "[]\r\n", "r.reg, γραμμή 3: η διαδρομή"},
        {header + "[\\-K]\r\n@=\"a\"\r\n", "r.reg, γραμμή 3: η διαδρομή"},
        {header + deep + "]\r\n", "r.reg, γραμμή 3: η διαδρομή"},
        {key + "junk\r\n", "r.reg, γραμμή 4: δεν είναι ούτε"},
        {key + "\"x\"\r\n", "r.reg, γραμμή 4: από την τιμή λείπει"},
        {key + "\"x\"=\r\n", "r.reg, γραμμή 4: η τιμή είναι άγνωστου"},
        {key + "\"x\"=word:1\r\n", "r.reg, γραμμή 4: η τιμή είναι άγνωστου"},
        {key + "\"x\"=hex(2\r\n", "r.reg, γραμμή 4: η τιμή είναι άγνωστου"},
        {key + "\"x\"=dword:\r\n", "r.reg, γραμμή 4: ο αριθμός"},
        {key + "\"x\"=dword:123456789\r\n", "r.reg, γραμμή 4: ο αριθμός"},
        {key + "\"x\"=dword:12z\r\n", "r.reg, γραμμή 4: υπάρχει κάτι"},
        {key + "\"x\"=\"a\" b\r\n", "r.reg, γραμμή 4: υπάρχει κάτι"},
        {key + "\"x\"=hex:4,\\ 5\r\n", "r.reg, γραμμή 4: μετά την ανάποδη"},
        {key + "\"x\"=\"never ended\r\n\r\n", "r.reg, γραμμή 4: από το κείμενο λείπουν"},
        {key + "\"x", "r.reg, γραμμή 4: από το κείμενο λείπουν"},
        {key + "\"x\"=\"\xE1\"\r\n", "r.reg, γραμμή 4: δεν είναι UTF-8"},
        {asUtf16(u"Windows Registry Editor Version 5.00\r\n\xD800"), "r.reg, γραμμή 2: δεν είναι UTF-8"},
        {asUtf16(u"Windows Registry Editor Version 5.00\r\n") + "[", ""},
    };
    for (const auto& [bytes, expected] : cases) {
        const std::string error = errorOf(bytes);
        EXPECT_EQ(error.substr(0, expected.size()), expected);
    }
    const TestFolder folder;
    EXPECT_EQ(loadRegFile(folder / "none.reg").message(),
              (folder / "none.reg").string() + ": δεν διαβάζεται");
    EXPECT_FALSE(loadRegFile(folder.path()));
    EXPECT_NE(loadRegFile(folder.write("empty.reg", "")).message().find("empty.reg, γραμμή 1"),
              std::string::npos);
}

TEST(RegFile, CutAtAnyByteItNeverBreaks) {
    const std::string whole = header +
                              "[HKEY_LOCAL_MACHINE\\A]\r\n@=\"x\\\\y\"\r\n\"n\"=dword:0000001f\r\n"
                              "\"h\"=hex(2):41,00,\\\r\n  42,00\r\n[-HKEY_LOCAL_MACHINE\\B]\r\n";
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const auto loaded = parseRegText(whole.substr(0, size), "r.reg");
        EXPECT_NE(static_cast<bool>(loaded), !loaded.message().empty()) << size;
    }
}

}  // namespace
}  // namespace platform
