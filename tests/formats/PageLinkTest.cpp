#include "formats/PageLink.h"

#include <gtest/gtest.h>

using formats::decodePageLink;
using formats::PageLink;

TEST(PageLink, IsReadAsItWasWrittenInAnyFolder) {
    const PageLink entry{6, 410040, 10026};
    EXPECT_EQ(formats::encodePageLink(entry), "kzpage-6-410040-10026.htm");
    for (const char* folder : {"", "C:\\Kalyxo\\cache\\", "c:/kzpage-1/", "x:"})
        EXPECT_EQ(decodePageLink(folder + formats::encodePageLink(entry)), entry) << folder;
}

TEST(PageLink, OtherAddressesAreNone) {
    for (const char* address :
         {"", "C:\\Kalyxo\\cache\\1.htm", "kzpage", "kzpage-6-410040.htm", "kzpage-6-410040-0",
          "kzpage-6-410040-0.htm#top", "kzpage-6--1-0.htm", "kzpage-99999-1-0.htm",
          "kzpage-6-99999999999-0.htm", "kzpage-6-410040-0.htm\\x", "xkzpage-6-410040-0.htm"})
        EXPECT_EQ(decodePageLink(address), std::nullopt) << address;
}
