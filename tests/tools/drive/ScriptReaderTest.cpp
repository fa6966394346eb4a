#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <vector>

#include "tests/tools/drive/EventLoop.h"
#include "tools/drive/script/ScriptReader.h"

namespace drive {
namespace {

/// A reader at one end of a pipe that takes every line but empty ones.
class ScriptReaderTest : public EventLoopTest {
  protected:
    ScriptReaderTest() {
        EXPECT_EQ(::pipe2(pipe_.data(), O_CLOEXEC), 0);
        reader_ = std::make_unique<ScriptReader>(
            pipe_[0], [this](const std::string& line) { return take(line); },
            [this](bool failed) {
                lines_.emplace_back(failed ? "(failed)" : "(end)");
                loop_.quit();
            });
    }
    ~ScriptReaderTest() override {
        reader_.reset();
        closeWriter();
        ::close(pipe_[0]);
    }

    bool take(const std::string& line) {
        if (line.empty()) return false;
        lines_.push_back(line);
        loop_.quit();
        return true;
    }
    void write(const std::string& bytes) {
        EXPECT_EQ(::write(pipe_[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    void closeWriter() {
        if (pipe_[1] >= 0) ::close(std::exchange(pipe_[1], -1));
    }
    /// Asks for a line and waits for it or the end.
    void next() {
        const std::size_t before = lines_.size();
        reader_->next();
        if (lines_.size() == before) {
            EXPECT_TRUE(runLoop(loop_));
        }
    }

    std::array<int, 2> pipe_{-1, -1};
    QEventLoop loop_;
    std::vector<std::string> lines_;
    std::unique_ptr<ScriptReader> reader_;
};

using Lines = std::vector<std::string>;

TEST_F(ScriptReaderTest, JoinsWhatArrivesInPiecesAndTheLastLineNeedsNoEnd) {
    write("half a ");
    QTimer::singleShot(20, &loop_, [this] {
        write("line\nlast");
        closeWriter();
    });
    next();
    next();
    next();
    EXPECT_EQ(lines_, (Lines{"half a line", "last", "(end)"}));
}

TEST_F(ScriptReaderTest, ManyLinesWithoutContentArePassedOver) {
    // Less than a pipe holds, and more than a stack does if each took a part of it.
    write(std::string(60'000, '\n') + "one\n");
    next();
    EXPECT_EQ(lines_, Lines{"one"});
}

TEST_F(ScriptReaderTest, AFolderIsNoScript) {
    const int folder = ::open("/", O_RDONLY | O_CLOEXEC);
    ScriptReader reader(
        folder, [](const std::string&) { return true; },
        [this](bool failed) {
            EXPECT_TRUE(failed);
            loop_.quit();
        });
    reader.next();
    EXPECT_TRUE(runLoop(loop_));
    ::close(folder);
}

}  // namespace
}  // namespace drive
