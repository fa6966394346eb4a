#include "platform/machine/MachineConfig.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/text/GreekLiteral.h"
#include "tests/support/TestFolder.h"

namespace platform {
namespace {

TEST(MachineConfig, FieldsLeftOutHaveTheirDefaults) {
    const auto empty = parseMachineConfig("{}", "m");
    ASSERT_TRUE(empty) << empty.message();
    EXPECT_EQ(*empty, MachineConfig());

    const auto some = parseMachineConfig(
        R"({"screen": {"width": 640}, "metrics": {"SM_CXMAXIMIZED": 600}, "printer": {"vertres": 5},
            "drives": {"D": {"type": "cdrom", "folder": "/media/disc"}, "E": {}}, "other": [1, {"x": null}]})",
        "m");
    ASSERT_TRUE(some) << some.message();
    EXPECT_EQ(some->screen, (ScreenConfig{640, 768, 32}));
    EXPECT_EQ(some->metrics.at("SM_CXMAXIMIZED"), 600);
    EXPECT_EQ(some->printer, (PrinterConfig{4800, 5, 600}));
    EXPECT_EQ(some->drives, (std::map<char, DriveConfig>{{'C', {DriveType::fixed, "c"}},
                                                         {'D', {DriveType::cdrom, "/media/disc"}},
                                                         {'E', {DriveType::fixed, "e"}}}));
}

TEST(MachineConfig, WhatIsSavedIsLoaded) {
    const TestFolder folder;
    MachineConfig config;
    config.screen = {640, 480, 8};
    config.metrics = {{"SM_CYMENU", 0}};
    config.drives = {{'A', {DriveType::removable, "/a"}},
                     {'B', {DriveType::unknown, "b"}},
                     {'R', {DriveType::remote, "Ρ δίσκος"}},
                     {'S', {DriveType::ramdisk, ""}}};
    config.program = "D:\\Πρόγραμμα\\x.exe"_gr;
    config.temp = "";
    config.system = "C:\\";
    config.printer = PrinterConfig{1, 2, 3};
    config.automation = false;
    for (const auto& saved : {config, MachineConfig()}) {
        ASSERT_TRUE(saveMachineConfig(saved, folder / "machine.json"));
        const auto loaded = loadMachineConfig(folder / "machine.json");
        ASSERT_TRUE(loaded) << loaded.message();
        EXPECT_EQ(*loaded, saved);
    }
    config.drives['T'].folder = "\xFF";
    EXPECT_FALSE(saveMachineConfig(config, folder / "machine.json"));
}

TEST(MachineConfig, WhatIsWrongIsToldByName) {
    const std::pair<std::string, std::string> cases[] = {
        {"", "m.json: δεν είναι JSON"},
        {"{\"screen\": ", "m.json: δεν είναι JSON"},
        {std::string(200000, '['), "m.json: δεν είναι JSON"},
        {"[]", "m.json: το περιεχόμενο πρέπει να είναι αντικείμενο"},
        {R"({"screen": 3})", "m.json: screen πρέπει να είναι αντικείμενο"},
        {R"({"screen": {"width": "1024"}})", "m.json: screen.width πρέπει να είναι ακέραιος"},
        {R"({"screen": {"height": 0}})", "m.json: screen.height πρέπει να είναι ακέραιος από 1"},
        {R"({"screen": {"bitsPerPixel": 1.5}})", "m.json: screen.bitsPerPixel πρέπει να είναι"},
        {R"({"screen": {"width": 99999999999999999999}})", "m.json: screen.width πρέπει να είναι"},
        {R"({"screen": {"width": 18446744073709551615}})", "m.json: screen.width πρέπει να είναι"},
        {R"({"metrics": {"SM_CYMENU": null}})", "m.json: metrics.SM_CYMENU πρέπει να είναι"},
        {R"({"metrics": []})", "m.json: metrics πρέπει να είναι αντικείμενο"},
        {R"({"drives": {"CD": {}}})", "m.json: drives: το \"CD\" δεν είναι γράμμα"},
        {R"({"drives": {"c": {}}})", "m.json: drives: το \"c\" δεν είναι γράμμα"},
        {R"({"drives": {"": {}}})", "m.json: drives: το \"\" δεν είναι γράμμα"},
        {R"({"drives": {"D": {"type": "tape"}}})", "m.json: drives.D.type πρέπει να είναι ένα από"},
        {R"({"drives": {"D": {"type": 5}}})", "m.json: drives.D.type πρέπει να είναι ένα από"},
        {R"({"drives": {"D": {"folder": 5}}})", "m.json: drives.D.folder πρέπει να είναι κείμενο"},
        {R"({"drives": {"D": "x"}})", "m.json: drives.D πρέπει να είναι αντικείμενο"},
        {R"({"program": 1})", "m.json: program πρέπει να είναι κείμενο"},
        {R"({"temp": "日"})", "m.json: temp έχει χαρακτήρα εκτός"},
        {R"({"system": null})", "m.json: system πρέπει να είναι κείμενο"},
        {R"({"printer": {"horzres": -1}})", "m.json: printer.horzres πρέπει να είναι"},
        {R"({"automation": "no"})", "m.json: automation πρέπει να είναι true ή false"},
        {R"({"sites": {"maker": "A b"}})",
         "m.json: sites.maker πρέπει να είναι όνομα τοποθεσίας με πεζά γράμματα"},
        {R"({"printer": true})", "m.json: printer πρέπει να είναι αντικείμενο"},
    };
    for (const auto& [json, expected] : cases) {
        const auto loaded = parseMachineConfig(json, "m.json");
        EXPECT_FALSE(loaded) << expected;
        EXPECT_EQ(loaded.message().substr(0, expected.size()), expected);
    }
    const TestFolder folder;
    EXPECT_EQ(loadMachineConfig(folder / "none").message(), (folder / "none").string() + ": δεν διαβάζεται");
    EXPECT_FALSE(loadMachineConfig(folder.path()));
    EXPECT_FALSE(loadMachineConfig(folder.write("huge", std::string(2 << 20, ' ') + "{}")));
}

}  // namespace
}  // namespace platform
