#include "platform/machine/NewMachine.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/machine/Machine.h"
#include "platform/text/GreekLiteral.h"
#include "tests/platform_pure/TestFolder.h"

namespace platform {
namespace {

class NewMachineTest : public ::testing::Test {
  protected:
    NewMachineTest() {
        host.write("disc/a.htm", "start");
        host.write("modules/one.ocx", "module one");
        host.write("modules/TWO.OCX", "module two");
        host.write("modules/three.so", "library of a module");
        host.write("modules/readme.txt", "no module");
        options.discFolder = host / "disc";
        options.modulesFrom = host / "modules";
        options.modulesTo = "C:\\Kalyxo\\ActiveX";
        options.settingsKey = "Software\\Maker\\Πρόγραμμα"_gr;
        options.settings = {{"Directory", "C:\\Kalyxo"}, {"Splitter", std::uint32_t{216}}};
        options.components = {{"one.ocx", "11111111-2222"}};
        options.files = {{"C:\\Kalyxo\\cset.ini", "[Settings]\r\n"}, {R"(C:\New\Deep\f)", "x"}};
    }

    TestFolder host;
    NewMachineOptions options;
};

TEST_F(NewMachineTest, HoldsAllThatWasAskedFor) {
    ASSERT_EQ(makeMachine(host / "deep/machine", options), std::nullopt);
    auto opened = Machine::open(host / "deep/machine");
    ASSERT_TRUE(opened) << opened.error;
    Machine& made = **opened.value;
    const FileSystem& files = made.files();

    EXPECT_EQ(files.driveType('D'), DriveType::cdrom);
    EXPECT_EQ(files.readAll("D:\\A.HTM", 99), "start");
    EXPECT_TRUE(files.exists(made.programPath()));
    EXPECT_TRUE(files.isFolder("C:\\Temp"));
    EXPECT_TRUE(files.isFolder("C:\\Windows\\System"));
    EXPECT_EQ(files.readAll("C:\\Kalyxo\\ActiveX\\one.ocx", 99), "module one");
    EXPECT_EQ(files.readAll("C:\\Kalyxo\\ActiveX\\two.ocx", 99), "module two");
    EXPECT_EQ(files.listFolder("C:\\Kalyxo\\ActiveX")->size(), 3U);
    EXPECT_EQ(files.readAll("C:\\Kalyxo\\cset.ini", 99), "[Settings]\r\n");
    EXPECT_EQ(files.readAll("C:\\New\\Deep\\f", 99), "x");

    const auto settings = made.registry().openKey(HKEY_LOCAL_MACHINE, options.settingsKey);
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->queryString("Directory", 256), "C:\\Kalyxo");
    EXPECT_EQ(settings->queryDword("Splitter"), 216U);
    const auto server = made.registry().openKey(HKEY_CLASSES_ROOT, "CLSID\\{11111111-2222}\\InprocServer32");
    ASSERT_TRUE(server);
    EXPECT_EQ(server->queryString("", 256), "C:\\Kalyxo\\ActiveX\\one.ocx");
    EXPECT_NE(host.read("deep/machine/machine.json").find("\"SM_CXMAXIMIZED\": 1032"), std::string::npos);
}

TEST_F(NewMachineTest, CanBeBareAndMadeAgain) {
    ASSERT_EQ(makeMachine(host / "machine", options), std::nullopt);
    NewMachineOptions bare;
    bare.settingsKey = options.settingsKey;
    ASSERT_EQ(makeMachine(host / "machine", bare), std::nullopt);
    auto opened = Machine::open(host / "machine");
    Machine& made = **opened.value;
    EXPECT_EQ(made.files().driveType('D'), DriveType::noRoot);
    EXPECT_FALSE(made.registry().openKey(HKEY_CLASSES_ROOT, "CLSID"));
    const auto settings = made.registry().openKey(HKEY_LOCAL_MACHINE, options.settingsKey);
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->queryString("Directory", 256), std::nullopt);
}

TEST_F(NewMachineTest, WhatCannotBeMadeIsNamed) {
    NewMachineOptions noDisc = options;
    noDisc.discFolder = host / "nodisc";
    EXPECT_NE(makeMachine(host / "m1", noDisc).value_or("").find("nodisc"), std::string::npos);
    NewMachineOptions noModules = options;
    noModules.modulesFrom = host / "disc";
    EXPECT_NE(makeMachine(host / "m2", noModules).value_or("").find("no component modules"),
              std::string::npos);
    NewMachineOptions noDrive = options;
    noDrive.files = {{"X:\\f", ""}};
    EXPECT_NE(makeMachine(host / "m3", noDrive).value_or("").find("X:\\f"), std::string::npos);
    host.write("file", "");
    EXPECT_NE(makeMachine(host / "file", options).value_or("").find("file"), std::string::npos);
}

}  // namespace
}  // namespace platform
