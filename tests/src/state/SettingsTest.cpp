#include <gtest/gtest.h>

#include "src/resources/ResourceTable.h"
#include "src/state/DataPaths.h"
#include "src/state/IniValue.h"
#include "src/state/Settings.h"
#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

using platform::HKEY_LOCAL_MACHINE;
using platform::Registry;

TEST(IniValue, FindsTheFirstMentionOfTheKey) {
    const struct {
        std::string text;
        std::string value;
    } cases[] = {
        {"[Settings]\r\nDataPath=D:\\data\r\n", "D:\\data"},
        {"DataPath\r\nother=x\r\n", "x"},
        {"DataPath", ""},
        {"nothing", ""},
        {"DataPath=" + std::string(254, 'a'), std::string(254, 'a')},
        {"DataPath=" + std::string(255, 'a'), ""},
    };
    for (const auto& c : cases) {
        std::string value = "old";
        EXPECT_EQ(GetIniValue(c.text, "DataPath", value), c.value.size()) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
}

TEST(DataPathsTest, ReadsNoFurtherThanAThousandBytes) {
    TestDrives drives;
    drives.put("D:\\a.htm", "start");
    const auto found = [&](std::size_t blanks) {
        drives.put("C:\\Kalyxo\\cset.ini",
                   std::string(blanks, ' ') + "DataPath=D:\\\r\nBookmark=C:\\b.dat\r\n");
        return FindDataPaths(drives.files, {"C:\\Kalyxo", "C:\\Temp\\"},
                             [](FolderPurpose) { return std::optional<std::string>(); })
            .has_value();
    };
    EXPECT_TRUE(found(900));
    EXPECT_FALSE(found(1000));
}

TEST(LayoutTest, ARegistryThatCannotBeWrittenSavesNothing) {
    platform::SetResources(ProgramResources());
    Registry registry;
    registry.createKey(HKEY_LOCAL_MACHINE, SettingsKeyPath());
    registry.setWritable(false);
    EXPECT_FALSE(WriteLayout(registry, {300, 2, {}}));
    EXPECT_FALSE(registry.openKey(HKEY_LOCAL_MACHINE, SettingsKeyPath())->queryDword("Size"));
}

}  // namespace
}  // namespace kalyxo
