#include "src/pages/PageCache.h"

#include <gtest/gtest.h>

#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

TEST(PageCacheTest, TwoProgramsAtOnceHaveAFolderEach) {
    TestDrives drives;
    drives.put("C:\\Kalyxo\\kalyxo.exe", "");
    const CacheLocation inside = LocateCache("C:\\Kalyxo", "C:\\", false);
    PageCache first(drives.files);
    first.Open(inside);
    drives.put(first.NextTarget(), "of the first");
    {
        PageCache second(drives.files);
        second.Open(inside);
        EXPECT_EQ(second.Folder(), "C:\\Kalyxo\\cache2\\");
        drives.put(second.NextTarget(), "of the second");
        second.CleanCache(true);
    }
    EXPECT_FALSE(drives.has("C:\\Kalyxo\\cache2"));
    EXPECT_EQ(drives.get("C:\\Kalyxo\\cache\\1.htm"), "of the first");
    first.CleanCache(true);
    PageCache third(drives.files);
    third.Open(inside);
    EXPECT_EQ(third.Folder(), "C:\\Kalyxo\\cache\\");
}

TEST(PageCacheTest, OutsideTheInstalledFolderTheLastProgramOutRemovesNothingOfOthers) {
    TestDrives drives;
    const CacheLocation outside = LocateCache("C:\\Kalyxo", "C:\\", true);
    PageCache first(drives.files);
    PageCache second(drives.files);
    first.Open(outside);
    second.Open(outside);
    drives.put(second.NextTarget(), "of the second");
    first.CleanCache(true);
    EXPECT_FALSE(drives.has("C:\\klyx"));
    EXPECT_EQ(drives.get("C:\\klyx2\\1.htm"), "of the second");
}

TEST(PageCacheTest, WhatAKilledProgramLeftHalfWrittenGoesAtTheNextStart) {
    TestDrives drives;
    for (const char* name : {"chime.mol.4711-0.tmp", "chime.mol", "1.htm"}) {
        drives.put("C:\\Kalyxo\\cache\\" + std::string(name), "x");
    }
    PageCache cache(drives.files);
    cache.Open(LocateCache("C:\\Kalyxo", "C:\\", false));
    EXPECT_FALSE(drives.has("C:\\Kalyxo\\cache\\chime.mol.4711-0.tmp"));
    EXPECT_TRUE(drives.has("C:\\Kalyxo\\cache\\1.htm"));
}

}  // namespace
}  // namespace kalyxo
