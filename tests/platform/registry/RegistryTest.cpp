#include "platform/registry/Registry.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/text/GreekLiteral.h"

namespace platform {
namespace {

TEST(Registry, KeysAndValuesAreFoundInAnyCase) {
    Registry registry;
    auto key = registry.createKey(HKEY_LOCAL_MACHINE, "Software\\Χημεία\\Edition"_gr);
    ASSERT_TRUE(key);
    EXPECT_TRUE(key->setString("Φάκελος"_gr, "C:\\Πρόγραμμα"_gr));
    EXPECT_TRUE(key->setString("", "default"));
    EXPECT_TRUE(key->setDword("Left", 0xFFFFFFFF));

    const auto same = registry.openKey(HKEY_LOCAL_MACHINE, "SOFTWARE\\χημεία\\EDITION\\"_gr);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->queryString("ΦΆΚΕΛΟΣ"_gr, 256), std::nullopt);  // the small final sigma has no capital
    EXPECT_EQ(same->queryString("φάκελος"_gr, 256), "C:\\Πρόγραμμα"_gr);
    EXPECT_EQ(same->queryString("", 256), "default");
    EXPECT_EQ(same->queryDword("LEFT"), 0xFFFFFFFF);

    EXPECT_FALSE(registry.openKey(HKEY_CLASSES_ROOT, "Software"));
    EXPECT_FALSE(registry.openKey(HKEY_LOCAL_MACHINE, "Software\\Missing"));
    EXPECT_TRUE(registry.openKey(HKEY_LOCAL_MACHINE, "software"));
}

TEST(Registry, ValuesOfAnotherTypeOrTooLongAreNotRead) {
    Registry registry;
    auto key = registry.createKey(HKEY_CLASSES_ROOT, "Key");
    key->setString("text", std::string(255, 'x'));
    key->setDword("number", 7);
    EXPECT_EQ(key->queryString("text", 255), std::nullopt);
    EXPECT_EQ(key->queryString("text", 256), std::string(255, 'x'));
    EXPECT_EQ(key->queryString("number", 256), std::nullopt);
    EXPECT_EQ(key->queryDword("text"), std::nullopt);
    EXPECT_EQ(key->queryDword("none"), std::nullopt);
    key->setDword("TEXT", 1);  // the new value takes the place of the old, type and all
    EXPECT_EQ(key->queryDword("text"), 1U);
    EXPECT_EQ(key->queryString("text", 256), std::nullopt);
}

TEST(Registry, WithoutTheRightToWriteNothingChanges) {
    Registry registry;
    registry.createKey(HKEY_LOCAL_MACHINE, "Key")->setDword("n", 1);
    auto reading = registry.openKey(HKEY_LOCAL_MACHINE, "Key");
    EXPECT_FALSE(reading->setDword("n", 2));
    EXPECT_FALSE(reading->setString("new", "x"));
    EXPECT_EQ(reading->queryDword("n"), 1U);

    EXPECT_FALSE(registry.openKeyForWriting(HKEY_LOCAL_MACHINE, "None"));
    registry.setWritable(false);
    EXPECT_FALSE(registry.openKeyForWriting(HKEY_LOCAL_MACHINE, "Key"));
    EXPECT_FALSE(registry.createKey(HKEY_LOCAL_MACHINE, "Key"));
    EXPECT_FALSE(registry.createKey(HKEY_LOCAL_MACHINE, "Other"));
    EXPECT_FALSE(registry.openKey(HKEY_LOCAL_MACHINE, "Other"));
    registry.setWritable(true);
    EXPECT_TRUE(registry.openKeyForWriting(HKEY_LOCAL_MACHINE, "Key")->setDword("n", 3));
    EXPECT_EQ(reading->queryDword("n"), 3U);
}

TEST(Registry, OpenKeysOutlastAMove) {
    Registry registry;
    auto key = registry.createKey(HKEY_LOCAL_MACHINE, "Key");
    Registry moved = std::move(registry);
    key->setDword("n", 5);
    EXPECT_EQ(moved.openKey(HKEY_LOCAL_MACHINE, "Key")->queryDword("n"), 5U);
}

}  // namespace
}  // namespace platform
