#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <thread>

#include "tests/tools/contentc/ContentFolder.h"

namespace {

namespace fs = std::filesystem;

/// The compiler installed beside a program that is a script.
class ShownProgram : public testing::Test {
  protected:
    ShownProgram() {
        fs::create_directories(content_.beside("bin"));
        fs::copy_file(CONTENTC, content_.beside("bin/contentc"));
    }

    /// `$3` is the data folder in it, `$told` a file for what it has to tell.
    void installProgram(const std::string& script) {
        const fs::path program = content_.beside("bin/kalyxo");
        content_.write("../bin/kalyxo", "#!/bin/sh\ntold='" + content_.beside("told").string() + "'\ncd '" +
                                            content_.sources().string() + "'\n" + script);
        fs::permissions(program, fs::perms::owner_all);
    }

    /// The exit status of a command on the sources.
    int run(const std::string& command) {
        const std::string line = environment_ + "LC_ALL=C '" + content_.beside("bin/contentc").string() +
                                 "' " + command + " '" + content_.sources().string() + "' --cache '" +
                                 content_.beside("cache").string() + "' >'" +
                                 content_.beside("errors").string() + "' 2>&1";
        const int status = std::system(line.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string errors() const { return readAll(content_.beside("errors")); }
    std::string told() const { return readAll(content_.beside("told")); }

    ContentFolder content_;
    std::string environment_;
};

TEST_F(ShownProgram, ShowsWhatOpenHasBuilt) {
    installProgram("echo \"$1 $2 $3\" >\"$told\"\nls \"$2\" | grep a.htm >>\"$told\"\n");
    EXPECT_EQ(run("open"), 0) << errors();
    EXPECT_EQ(told(), "--data " + (content_.sources() / "data").string() + " --follow\na.htm\n");
}

TEST_F(ShownProgram, IsNotStartedWithNothingToShow) {
    installProgram("echo started >\"$told\"\n");
    content_.remove("start.md");
    EXPECT_EQ(run("open"), 1);
    EXPECT_EQ(told(), "");
}

TEST_F(ShownProgram, IsMissed) {
    environment_ = "PATH=/none ";
    for (const char* command : {"open", "watch"}) {
        EXPECT_EQ(run(command), 1);
        EXPECT_NE(errors().find("the program kalyxo is not there; install it"), std::string::npos)
            << errors();
    }
}

// The script plays an author who makes a mistake, mends it, and adds a page in a new folder.
TEST_F(ShownProgram, FollowsTheChangesThatWatchSees) {
    installProgram(R"(
waits() { for i in $(seq 300); do if "$@"; then return 0; fi; sleep 0.1; done; echo "not: $*" >>"$told"; }
holds() { grep -q "$2" "$1" 2>/dev/null; }
errors=$(dirname "$told")/errors
echo '{{x}}' >>pages/uses/400000.md
waits holds "$errors" 'unknown mark'
holds data/a.htm Welcome && echo 'former stays' >>"$told"
printf 'title: S\n---\nmended\n' >pages/uses/400000.md
waits holds data/40/0000 mended
mkdir pictures videos
printf 'title: T\nsummary: S\n---\nnew\n' >pages/uses/400010.md
waits holds data/40/0010 new
rm pages/uses/400010.md
waits test ! -e data/40/0010
echo closed >>"$told"
)");
    EXPECT_EQ(run("watch"), 0) << errors();
    EXPECT_EQ(told(), "former stays\nclosed\n") << errors();
}

// As the terminal shows it: a bar that comes when it takes long, and goes.
TEST_F(ShownProgram, ProgressIsShownOnATerminalOnly) {
    content_.write("../tools/rsvg-convert",
                   "#!/bin/sh\nsleep 0.4\nprintf '\\211PNG\\r\\n\\032\\n' >\"$7\"\n");
    fs::permissions(content_.beside("tools/rsvg-convert"), fs::perms::owner_all);
    for (int i = 0; i < 3 * static_cast<int>(std::thread::hardware_concurrency()); ++i)
        content_.write("pictures/p" + std::to_string(i) + ".svg",
                       "<svg width=\"" + std::to_string(i + 1) + "\"/>");
    environment_ = "PATH='" + content_.beside("tools").string() + "':$PATH ";
    const std::string all =
        '/' + std::to_string(3 * std::thread::hardware_concurrency()) + " pictures and videos";
    EXPECT_EQ(run("build"), 0) << errors();
    EXPECT_EQ(errors().find(all), std::string::npos);
    fs::remove_all(content_.beside("cache"));
    const std::string command =
        environment_ + "LC_ALL=C script -qec \"'" + content_.beside("bin/contentc").string() + "' build '" +
        content_.sources().string() + "' --cache '" + content_.beside("cache").string() + "'\" '" +
        content_.beside("errors").string() + "' >/dev/null 2>&1 </dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
    const std::string shown = errors();
    EXPECT_NE(shown.find("[##########"), std::string::npos) << shown;
    EXPECT_NE(shown.find(all), std::string::npos) << shown;
    const std::size_t end = shown.rfind(all) + all.size();
    EXPECT_TRUE(shown.substr(end).starts_with("\r\033[K")) << shown;
    EXPECT_NE(shown.find("Done. Pages: ", end), std::string::npos) << shown;
}

}  // namespace
