#include <gtest/gtest.h>

#include "tests/tools/contentc/ContentFolder.h"

namespace {

using Messages = std::vector<std::string>;

/// A layer is a folder that another folder is laid over; the file kalyxo.content names it.
TEST(Layers, GiveWhatIsNotInTheLayerAbove) {
    ContentFolder content;
    content.write("../base/pages/uses/400010.md", "title: Soap\nsummary: S\n---\nbase\n");
    content.write("../base/pages/uses/400020.md", "title: Glass\nsummary: S\n---\nbase\n");
    content.write("../base/molecules/ethanol.mol", "base");
    content.write("../base/molecules/water.mol", "base");
    content.write("../base/pictures/Notes.txt", "ignored in silence");
    content.write("pages/uses/400010.md", "title: Soap\nsummary: S\n---\nown\n");
    content.write("kalyxo.content", "# a note\nβάση: ../base\n");
    EXPECT_NE(content.compiled("40\\0010").find("own"), std::string::npos);
    EXPECT_NE(content.compiled("40\\0020").find("base"), std::string::npos);
    EXPECT_EQ(content.compiled("mol\\ethanol.mol"), "base");
    EXPECT_EQ(content.compiled("mol\\water.mol"), sampleMolecule);
    EXPECT_EQ(content.messages, Messages{});
}

TEST(Layers, ThatAreWrongAreReportedByLine) {
    ContentFolder content;
    content.write("../base/pages/uses/400010.md", "title: Soap\nsummary: S\n---\nbase\n");
    content.write("../base/kalyxo.content", "base: ../content\n");
    content.write("kalyxo.content", "base: ../base\nbse: ../base\nbase: ../none\nbase: kalyxo\nbase\n");
    EXPECT_FALSE(content.compile());
    const std::string base = content.beside("base").generic_string();
    const std::string none = content.beside("none").generic_string();
    EXPECT_EQ(content.messages,
              (Messages{base + "/kalyxo.content:1: '../content' is built on this folder already, so neither "
                               "could be read first",
                        "kalyxo.content:2: unknown name 'bse'; did you mean 'base'?",
                        "kalyxo.content:3: there is no folder '" + none + '\'',
                        "kalyxo.content:4: the content of the program is not installed",
                        "kalyxo.content:5: not a line 'base: folder'"}));
}

}  // namespace
