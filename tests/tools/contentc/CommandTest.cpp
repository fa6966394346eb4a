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
                  "uses/400010.md:4:1: unknown mark '{{x}}'\n" + pages +
                  "uses/400010.md:5:1: unknown mark '{{y}}'\nErrors: 3. Warnings: 0. Nothing was written.\n");
    EXPECT_FALSE(fs::exists(content_.beside("out")));
}

// On a disk of 512 KB, which only a user who may mount one in a name space of their own can have.
TEST_F(Command, FullDiskIsNamedAndKeepsTheFormerFolder) {
    fs::create_directories(content_.beside("out"));
    const std::string disk = "mount -t tmpfs -o size=512k none '" + content_.beside("out").string() + "'";
    if (std::system(("unshare -rm sh -c \"" + disk + "\" 2>/dev/null").c_str()) != 0) GTEST_SKIP();
    content_.write(".large.png", samplePng + std::string(400'000, 'x'));
    const std::string folder = content_.sources().string();
    // Away from the program, whose pictures for the main menu would not fit.
    fs::copy_file(CONTENTC, content_.beside("contentc"));
    const std::string build = content_.beside("contentc").string() + " build '" + folder + "' --output '" +
                              content_.beside("out/data").string() + "' --cache '" + folder + "/.cache' ";
    content_.write(".try.sh", disk + " && " + build + "&& ls -R >former '" + content_.beside("out").string() +
                                  "' && mv .large.png pictures/large.png && ! " + build +
                                  "&& ls -R >after '" + content_.beside("out").string() +
                                  "' && cmp former after\n");
    content_.write("pictures/small.png", samplePng + std::string(200'000, 'x'));
    const std::string script = "cd '" + folder + "' && LC_ALL=C unshare -rm sh .try.sh >'" +
                               content_.beside("errors").string() + "' 2>&1";
    EXPECT_EQ(std::system(script.c_str()), 0) << readAll(content_.beside("errors"));
    EXPECT_NE(
        readAll(content_.beside("errors")).find("the disk is full; the former data folder stays as it was"),
        std::string::npos)
        << readAll(content_.beside("errors"));
}

// What a class makes of its first try; the messages are looked at by people.
TEST_F(Command, ThirtyMistakesAreToldInBothLanguages) {
    const fs::path folder = fs::path(TEST_FOLDER) / "mistakes";
    for (const char* language : {"el", "en"}) {
        const std::string command = "cd '" + (folder / "content").string() + "' && LC_ALL=" + language +
                                    "_XX.UTF-8 " + CONTENTC + " check >'" +
                                    content_.beside("errors").string() + "' 2>&1";
        EXPECT_NE(std::system(command.c_str()), 0);
        EXPECT_EQ(readAll(content_.beside("errors")),
                  readAll(folder / ("messages." + std::string(language) + ".txt")));
    }
}

TEST_F(Command, VideosOfOtherKindsAreConverted) {
    content_.write("pages/uses/400010.md", "title: T\nsummary: S\n---\n{{video fire}}\n");
    const std::string film = (content_.sources() / "videos/fire.mp4").string();
    fs::create_directories(content_.sources() / "videos");
    ASSERT_EQ(
        std::system(("ffmpeg -loglevel error -f lavfi -i color=size=64x48:duration=0.2:rate=5 -c:v mpeg4 '" +
                     film + '\'')
                        .c_str()),
        0);
    EXPECT_EQ(compileTo("data"), 0) << errors_;
    EXPECT_TRUE(readAll(folder("data") / "video/fire.webm").starts_with("\x1A\x45\xDF\xA3"));
    content_.write("videos/fire.mp4", "no film");
    EXPECT_EQ(compileTo("data"), 1);
    EXPECT_NE(errors_.find("videos/fire.mp4:1: this video cannot be read: "), std::string::npos) << errors_;
}

TEST_F(Command, DrawingsThatCannotBeMadeAreToldOneByOne) {
    content_.write("pictures/air.svg", "<svg width=\"4\" height=\"2\"><g></svg>");
    EXPECT_EQ(compileTo("data"), 1);
    EXPECT_NE(errors_.find("pictures/air.svg:1: this drawing cannot be read: "), std::string::npos)
        << errors_;
    content_.write("videos/fall.json", "{}");
    content_.write("videos/render.sh", "echo no frames >&2; exit 1");
    EXPECT_EQ(compileTo("data"), 1);
    EXPECT_NE(errors_.find("videos/fall.json:1: this film cannot be made: no frames"), std::string::npos)
        << errors_;
    limits_ = "PATH=/none ";
    EXPECT_EQ(compileTo("data"), 1);
    EXPECT_NE(
        errors_.find("the program 'rsvg-convert' is not there that makes it; install it: sudo apt install "
                     "librsvg2-bin"),
        std::string::npos)
        << errors_;
}

TEST_F(Command, CountsAreOfEachKind) {
    const std::string folder = '\'' + content_.sources().string() + '\'';
    content_.write("pages/uses/400010.md", "title: T\nsummary: S\n---\n{{tool gas}}\n{{tool gas}}\n");
    content_.write("pictures/air.svg", "<svg width=\"4\" height=\"2\"></svg>");
    EXPECT_EQ(run("counts " + folder), 0) << errors_;
    for (const char* line : {"     1  Η χημεία στην πράξη\n", "     3  all together\n", "     1  elem\n",
                             "     1  with a text of their own\n     0  made from the data\n",
                             "     1  terms of the glossary\n     1  molecules\n", "     1  drawings\n",
                             "Tools on pages\n     2  gas\n"})
        EXPECT_NE(errors_.find(line), std::string::npos) << line << '\n' << errors_;
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
    const std::pair<std::string, const char*> cases[] = {
        {"", "no command; contentc --help tells of them"},
        {folder, "unknown command"},
        {"chek", "unknown command 'chek'"},
        {"check --quick", "unknown option '--quick'"},
        {"build " + folder + "second", "'second' is one argument too many"},
        {"build " + folder + "--images", "behind --images something is missing"},
        {"build " + folder + "--media none", "none: no such folder"},
        {"check none", "none: no such folder"},
        {"new", "'new' needs the name of a folder"},
    };
    for (const auto& [arguments, message] : cases) {
        EXPECT_EQ(run(arguments), 2) << arguments;
        EXPECT_NE(errors_.find(message), std::string::npos) << arguments << ": " << errors_;
    }
    EXPECT_FALSE(fs::exists(content_.beside("out")));
    EXPECT_EQ(run("--help"), 0);
    EXPECT_NE(errors_.find("Usage: contentc COMMAND [FOLDER] [OPTION]..."), std::string::npos) << errors_;
}

TEST_F(Command, StrictTakesWarningsForErrors) {
    content_.write("pictures/air.jpg", "\xFF\xD8\xFF");
    const std::string folder = '\'' + content_.sources().string() + "' ";
    EXPECT_EQ(run("check " + folder), 0) << errors_;
    EXPECT_EQ(run("check --strict " + folder), 1);
    EXPECT_NE(errors_.find("Warnings: 1, and they count as errors (--strict). Nothing was written."),
              std::string::npos)
        << errors_;
}

TEST_F(Command, PlacesWhereNothingCanBeWrittenAreNamed) {
    content_.write("pictures/air.svg", "<svg width=\"4\" height=\"2\"></svg>");
    const std::string build = "build '" + content_.sources().string() + "' --output '";
    const std::string file = (content_.sources() / "start.md").string();
    EXPECT_EQ(run(build + content_.beside("out").string() + "' --cache '" + file + '\''), 1);
    EXPECT_NE(errors_.find("start.md:1: nothing can be written into this folder"), std::string::npos)
        << errors_;
    EXPECT_EQ(run(build + file + "/data' --cache '" + content_.beside("cache").string() + '\''), 1);
    EXPECT_NE(errors_.find("start.md:1: cannot be written: Not a directory"), std::string::npos) << errors_;
    EXPECT_EQ(run("new '" + file + "/data'"), 1);
    EXPECT_NE(errors_.find("cannot be written"), std::string::npos) << errors_;
}

}  // namespace
