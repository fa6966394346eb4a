#include "platform/machine/NewMachine.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/machine/Machine.h"
#include "platform/text/GreekLiteral.h"
#include "tests/support/TestFolder.h"

namespace platform {
namespace {

class NewMachineTest : public ::testing::Test {
  protected:
    NewMachineTest() {
        host.write("disc/a.htm", "start");
        host.write("modules/TWO.OCX", "module two");
        host.write("modules/three.so", "library of a module");
        host.write("modules/readme.txt", "no module");
        options.discFolder = host / "disc";
        options.modulesFrom = host / "modules";
        options.modulesTo = "C:\\Program\\ActiveX";
        options.settingsKey = "Software\\Maker\\Πρόγραμμα"_gr;
        options.settings = {{"Directory", "C:\\Program"}, {"Splitter", std::uint32_t{216}}};
        options.components = {{"two.ocx", "11111111-2222"}};
        options.files = {{R"(C:\New\Deep\f)", "x"}};
    }

    TestFolder host;
    NewMachineOptions options;
};

TEST_F(NewMachineTest, IsMadeAnewWhereOneWas) {
    ASSERT_EQ(makeMachine(host / "deep/machine", options).message(), "");
    const auto first = *Machine::open(host / "deep/machine");
    EXPECT_EQ(first->files().listFolder(options.modulesTo)->size(), 2U);
    EXPECT_EQ(first->files().readAll("C:\\New\\Deep\\f", 99), "x");
    EXPECT_EQ(first->registry().openKey(HKEY_LOCAL_MACHINE, options.settingsKey)->queryDword("Splitter"),
              216U);

    NewMachineOptions bare;
    bare.settingsKey = options.settingsKey;
    ASSERT_EQ(makeMachine(host / "deep/machine", bare).message(), "");
    const auto made = *Machine::open(host / "deep/machine");
    EXPECT_EQ(made->files().driveType('D'), DriveType::noRoot);
    EXPECT_FALSE(made->registry().openKey(HKEY_CLASSES_ROOT, "CLSID"));
    const auto settings = made->registry().openKey(HKEY_LOCAL_MACHINE, options.settingsKey);
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->queryString("Directory", 256), std::nullopt);
}

TEST_F(NewMachineTest, WhatCannotBeMadeIsNamed) {
    NewMachineOptions noDisc = options;
    noDisc.discFolder = host / "nodisc";
    EXPECT_NE(makeMachine(host / "m1", noDisc).message().find("nodisc"), std::string::npos);
    host.write("m5/c/Program/ActiveX/TWO.OCX/in the way", "");
    EXPECT_NE(makeMachine(host / "m5", options).message().find("δεν αντιγράφεται στον φάκελο C:\\Program"),
              std::string::npos);
    NewMachineOptions noModules = options;
    noModules.modulesFrom = host / "disc";
    EXPECT_NE(makeMachine(host / "m2", noModules).message().find("τα μέρη του προγράμματος"),
              std::string::npos);
    NewMachineOptions noDrive = options;
    noDrive.files = {{"X:\\f", ""}};
    EXPECT_NE(makeMachine(host / "m3", noDrive).message().find("X:\\f"), std::string::npos);
    host.write("file", "");
    EXPECT_NE(makeMachine(host / "file", options).message().find("file"), std::string::npos);
}

}  // namespace
}  // namespace platform
