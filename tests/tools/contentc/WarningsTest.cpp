#include <gtest/gtest.h>

#include "tests/tools/contentc/ContentFolder.h"

namespace {

using Messages = std::vector<std::string>;

const std::string topicHead = "title: T\nsummary: S\n---\n";

TEST(Warnings, StopNothing) {
    ContentFolder content;
    content.write("words/terminology.txt", "μίγμα | μείγμα\nατομικό βάρος | ατομική μάζα\n");
    content.write("glossary/hydrogen.md", "# υδρογόνο | μίγμα\nΔεν είναι μίγμα.\n");
    content.write("pages/uses/400010.md",
                  "title: Μίγματα, μίγμα\nsearch: μίγμα\n---\n**α «μίγμα», [[υδρογόνο]], Ατομικό βάρος\n\n"
                  "| a | b |\n\n<P CLASS=\"wide\">x</P>\n\n{{video air}}\n");
    content.write("style.css", ".narrow { }\n");
    content.write("../built/air.webm", "\x1A\x45\xDF\xA3");
    content.write("videos/fire.webm", "\x1A\x45\xDF\xA3");
    EXPECT_TRUE(content.compile());
    EXPECT_EQ(
        content.messages,
        (Messages{("glossary/hydrogen.md:2:11: warning: 'μίγμα' is not the word that is used here; write "
                   "'μείγμα' instead"),
                  "pages/uses/400010.md:1:8: warning: a topic needs a summary, for the list of topics",
                  ("pages/uses/400010.md:1:17: warning: 'μίγμα' is not the word that is used here; write "
                   "'μείγμα' instead"),
                  "pages/uses/400010.md:4:1: warning: '**' has no partner, so it is shown as it is",
                  ("pages/uses/400010.md:4:28: warning: 'Ατομικό βάρος' is not the word that is used "
                   "here; write 'ατομική μάζα' instead"),
                  ("pages/uses/400010.md:6: warning: a table needs a line '|---|---|' below its first "
                   "line"),
                  "pages/uses/400010.md:8:11: warning: no style is called 'wide'",
                  "videos/fire.webm:1: warning: no page uses this video"}));
}

TEST(CompleteCheck, TellsWhatTopicsLack) {
    ContentFolder content;
    std::string words;
    for (int i = 0; i < 451; ++i) words += "μία λέξη ";
    content.write("tools/quiz/face.js", "");
    content.write("pages/uses/400010.md", topicHead + words + '\n');
    content.write("pages/uses/400020.md", "title: T\nsummary: S\nclass: Γ΄ Γυμνασίου 1\n---\n::: quiz\n? " +
                                              words + "\n- a\n+ b\n:::\n<IMG SRC=x>\n");
    EXPECT_TRUE(content.compile(contentc::Checks::complete));
    std::erase_if(content.messages,
                  [](const std::string& message) { return !message.starts_with("pages/uses"); });
    EXPECT_EQ(
        content.messages,
        (Messages{"pages/uses/400010.md:1: warning: the topic has 902 words; at most 900 are read",
                  "pages/uses/400010.md:1: warning: the topic has neither picture nor molecule, film or tool",
                  "pages/uses/400010.md:1: warning: the topic has no quiz",
                  "pages/uses/400010.md:1: warning: the topic names no school year ('class')"}));
}

}  // namespace
