#include <gtest/gtest.h>

#include "tests/scenarios/Scenario.h"

namespace scenario {
namespace {

const Json kAnswer = Json::parse(R"({
    "cmd": "state", "ok": true, "mode": "Page", "pageId": 370001, "video": false,
    "history": {"current": 1, "entries": [{"section": 2}, {"section": 5}]},
    "trace": [{"sleep": 2000}, {"call": {"name": "ShowItem", "args": [1, 0, false]}}, {"sleep": 1}],
    "windows": [{"class": "Frame", "children": [{"class": "Edit", "handle": 7}, {"class": "Edit", "handle": 8}]}],
    "text": "Τα άτομα και τα ιόντα"
})");

TEST(ScenarioFragments, WhatAnAnswerHolds) {
    for (const char* held : {
             R"({})",
             R"({"mode": "Page", "video": false})",
             R"({"history": {"entries": [{}, {"section": 5}]}})",
             R"({"trace": ["…"]})",
             R"({"trace": ["…", {"call": {"name": "ShowItem"}}, {"sleep": 1}]})",
             R"({"text": "…άτομα και…"})",
             R"({"text": "Τα…"})",
             R"({"text": "…ιόντα"})",
         }) {
        EXPECT_EQ(difference(kAnswer, Json::parse(held)), std::nullopt) << held;
    }
}

TEST(ScenarioFragments, WhatAnAnswerDoesNotHold) {
    for (const char* other : {
             R"({"mode": "MainMenu"})",
             R"({"video": 0})",
             R"({"section": null})",
             R"({"mode": {"x": 1}})",
             R"({"mode": ["Page"]})",
             R"({"history": {"entries": [{"section": 2}]}})",
             R"({"history": {"entries": [{"section": 5}, {"section": 2}]}})",
             R"({"trace": [{"sleep": 2000}]})",
             R"({"trace": ["…", {"sleep": 1}, {"sleep": 2000}]})",
             R"({"trace": ["…", {"sleep": 1}, {"sleep": 1}]})",
             R"({"text": "…άτομα"})",
             R"({"text": "άτομα…"})",
             R"({"text": "άτομα"})",
         }) {
        EXPECT_NE(difference(kAnswer, Json::parse(other)), std::nullopt) << other;
    }
}

TEST(ScenarioFragments, FoundAtAnyDepth) {
    const Json* edit = findSomewhere(kAnswer, Json::parse(R"({"class": "Edit"})"));
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ((*edit)["handle"], 7);
    EXPECT_EQ(findSomewhere(kAnswer, Json::parse(R"({"class": "Edit", "handle": 9})")), nullptr);
}

TEST(ScenarioForm, ReadsEachKindOfLine) {
    const Scenario scenario = parseScenario(
        "# Περιγραφή\n"
        "#! write c/Kalyxo/cset.ini \"[Settings]\\r\\n\"\n"
        "\n"
        "start\r\n"
        "#= {\"running\": true}\n"
        "#= nowhere {\"class\": \"Edit\"}\n"
        "#$ edit handle {\"class\": \"Edit\"}\n"
        "  click 1 2 \"#1035\"\n"
        "#? count c/Kalyxo/cache 20");
    EXPECT_TRUE(scenario.mistakes.empty());
    ASSERT_EQ(scenario.steps.size(), 7U);
    const auto& write = std::get<MachineChange>(scenario.steps[0].action);
    EXPECT_EQ(scenario.steps[0].line, 2);
    EXPECT_EQ(write.words, std::vector<std::string>{"c/Kalyxo/cset.ini"});
    EXPECT_EQ(write.value, "[Settings]\r\n");
    EXPECT_EQ(std::get<Command>(scenario.steps[1].action).line, "start");
    EXPECT_EQ(std::get<Expectation>(scenario.steps[3].action).kind, Expectation::Kind::nowhere);
    EXPECT_EQ(std::get<Capture>(scenario.steps[4].action).field, "handle");
    EXPECT_EQ(std::get<Command>(scenario.steps[5].action).line, "click 1 2 \"#1035\"");
    EXPECT_EQ(std::get<FileCheck>(scenario.steps[6].action).value, 20);
}

TEST(ScenarioForm, MistakesAreNotPassedOver) {
    for (const char* mistake :
         {"#= {\"running\"", "#=", "#! erase d/a.htm", "#! delete", "#! delete a b", "#! write d/a.htm",
          R"(#$ edit {"class": "Edit"})", "#? exists a", "#? file", "#? count c"}) {
        const Scenario scenario = parseScenario(mistake);
        EXPECT_EQ(scenario.mistakes.size(), 1U) << mistake;
        EXPECT_TRUE(scenario.steps.empty()) << mistake;
    }
}

}  // namespace
}  // namespace scenario
