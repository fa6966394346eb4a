#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "tests/tools/contentc/ContentFolder.h"

namespace {

namespace fs = std::filesystem;
using Files = std::vector<std::string>;

class Command : public testing::Test {
  protected:
    /// Runs the compiler; the exit status.
    int run(const std::string& arguments) {
        const std::string errors = content_.beside("errors").string();
        const std::string command =
            limits_ + "LC_ALL=C " + std::string(CONTENTC) + ' ' + arguments + " >'" + errors + "' 2>&1";
        const int status = std::system(command.c_str());
        errors_ = readAll(errors);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    int compileTo(const std::string& name) {
        return run("build '" + content_.sources().string() + "' --output '" + folder(name).string() +
                   "' --cache '" + content_.beside("cache").string() + '\'');
    }
    fs::path folder(const std::string& name) const { return content_.beside("out") / name; }

    ContentFolder content_;
    /// Shell commands before the run.
    std::string limits_;
    std::string errors_;
};

TEST_F(Command, SameSourcesGiveTheSameBytes) {
    EXPECT_EQ(compileTo("one"), 0);
    EXPECT_EQ(compileTo("two"), 0);
    const Files files = listAll(folder("one"));
    EXPECT_FALSE(files.empty());
    EXPECT_EQ(files, listAll(folder("two")));
}

TEST_F(Command, SourceErrorsAreAllToldAndLeaveNoFolder) {
    content_.write("pages/uses/400010.md", "title: T\nsummary: S\n---\n{{x}}\n{{y}}\n");
    content_.write("pages/concept/10.md", "");
    EXPECT_EQ(compileTo("data"), 1);
    const std::string pages = content_.sources().generic_string() + "/pages/";
    EXPECT_EQ(errors_,
              pages + "concept/10.md:1: no line '---' between header and body\n" + pages +
                  "uses/400010.md:4: unknown mark '{{x}}'\n" + pages +
                  "uses/400010.md:5: unknown mark '{{y}}'\nErrors: 3. Warnings: 0. Nothing was written.\n");
    EXPECT_FALSE(fs::exists(content_.beside("out")));
}

// As on a full disk: no file may be written beyond 512 bytes or so.
TEST_F(Command, WriteErrorKeepsTheFormerFolder) {
    EXPECT_EQ(compileTo("data"), 0);
    const Files former = listAll(content_.beside("out"));
    content_.write("pictures/large.png", samplePng + std::string(100'000, 'x'));
    limits_ = "trap '' XFSZ; ulimit -f 1; ";
    EXPECT_EQ(compileTo("data"), 1);
    EXPECT_NE(errors_.find("/out/data/"), std::string::npos) << errors_;
    EXPECT_EQ(listAll(content_.beside("out")), former);
}

TEST_F(Command, NewFolderIsRightAloneAndOverTheProgramsContent) {
    for (const std::string& base : {std::string(), std::string("--base kalyxo")}) {
        const std::string made = '\'' + folder("made" + base.substr(0, 6)).string() + '\'';
        EXPECT_EQ(run("new " + made + ' ' + base), 0) << errors_;
        EXPECT_EQ(run("check --strict " + made), 0) << errors_;
        EXPECT_EQ(run("new " + made + ' ' + base), 1);
        EXPECT_NE(errors_.find("is not empty"), std::string::npos);
    }
}

TEST_F(Command, WrongArgumentsAreRefused) {
    const std::string folder = '\'' + content_.sources().string() + "' ";
    for (const std::string& arguments :
         {std::string(), folder, "build " + folder + "second", "build " + folder + "--images",
          std::string("check --quick"), "build " + folder + "--media none", std::string("check none"),
          std::string("new")}) {
        EXPECT_EQ(run(arguments), 2) << arguments;
        EXPECT_NE(errors_, "") << arguments;
    }
    EXPECT_FALSE(fs::exists(content_.beside("out")));
}

}  // namespace
