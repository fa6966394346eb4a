#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "tests/tools/contentc/ContentFolder.h"

namespace {

namespace fs = std::filesystem;
using Messages = std::vector<std::string>;

TEST(SourceFiles, ThatCannotBeReadAreNamed) {
    const std::string page = "pages/uses/400010.md";
    struct Case {
        const char* what;
        void (*make)(const fs::path& file);
        std::string message;
    };
    const Case cases[] = {
        {"a folder", [](const fs::path& file) { fs::create_directory(file); },
         page + ":1: is a folder or something else, where a file is expected"},
        {"a link to nowhere", [](const fs::path& file) { fs::create_symlink("none", file); },
         page + ":1: cannot be read"},
        {"a link to itself", [](const fs::path& file) { fs::create_symlink(file.filename(), file); },
         page + ":1: cannot be read"},
        {"a huge file",
         [](const fs::path& file) {
             std::ofstream(file).put('x');
             fs::resize_file(file, 257UL * 1024 * 1024);
         },
         page + ":1: larger than 256 MB"},
        // The system says that it is empty, and there is something to read all the same: so looks a file that
        // has been written to since its size was asked for.
        {"a file that grows", [](const fs::path& file) { fs::create_symlink("/proc/self/status", file); },
         page + ":1: changes while it is read; try again when it is saved"},
    };
    for (const Case& each : cases) {
        ContentFolder content;
        each.make(content.sources() / page);
        EXPECT_FALSE(content.compile()) << each.what;
        EXPECT_EQ(content.messages, Messages{each.message}) << each.what;
    }
}

TEST(SourceFiles, OfWhichTheReaderHasNoRight) {
    ContentFolder content;
    content.write("pages/uses/400010.md", "title: T\nsummary: S\n---\n");
    fs::permissions(content.sources() / "pages/uses/400010.md", fs::perms::none);
    if (std::ifstream(content.sources() / "pages/uses/400010.md").is_open()) GTEST_SKIP() << "root reads all";
    EXPECT_FALSE(content.compile());
    EXPECT_EQ(content.messages, Messages{"pages/uses/400010.md:1: you have no right to read this file"});
}

TEST(IgnoredFiles, AreNamedWithTheirPlace) {
    const std::pair<const char*, std::string> cases[] = {
        {"datasets/gases.xlsx", "a *.xlsx file is of no use in the folder 'datasets'; save it as *.data"},
        {"glossary/water.txt", "a *.txt file is of no use in the folder 'glossary'; save it as *.md"},
        {"pages/uses/water.JPG",
         "a *.JPG file is of no use in the folder 'pages'; its place is the folder 'pictures'"},
        {"pages/400010.md",
         "a *.md file is of no use in the folder 'pages'; pages lie in the folder of a section, such as "
         "pages/uses"},
        {"water.sdf", "a *.sdf file is of no use in the folder '.'; its place is the folder 'molecules'"},
        {"molecules/water", "the file's name has no extension"},
        {"molecules/old/water.mol", "folders are not looked into here"},
    };
    ContentFolder content;
    Messages expected;
    for (const auto& [file, message] : cases) {
        content.write(file, "");
        const bool isFolder = message.starts_with("folders");
        const std::string place = isFolder ? std::filesystem::path(file).parent_path().string() : file;
        expected.push_back(place + ":1: warning: ignored: " + message);
    }
    content.write("README.md", "");
    content.write("pages/uses/400010.md~", "");
    EXPECT_TRUE(content.compile());
    std::ranges::sort(expected);
    EXPECT_EQ(content.messages, expected);
}

}  // namespace
