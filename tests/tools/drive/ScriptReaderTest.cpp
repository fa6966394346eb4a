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
        EXPECT_EQ(::pipe2(m_pipe.data(), O_CLOEXEC), 0);
        m_reader = std::make_unique<ScriptReader>(
            m_pipe[0], [this](const std::string& line) { return take(line); },
            [this](bool failed) {
                m_lines.emplace_back(failed ? "(failed)" : "(end)");
                m_loop.quit();
            });
    }
    ~ScriptReaderTest() override {
        m_reader.reset();
        closeWriter();
        ::close(m_pipe[0]);
    }

    bool take(const std::string& line) {
        if (line.empty()) return false;
        m_lines.push_back(line);
        m_loop.quit();
        return true;
    }
    void write(const std::string& bytes) {
        EXPECT_EQ(::write(m_pipe[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    void closeWriter() {
        if (m_pipe[1] >= 0) ::close(std::exchange(m_pipe[1], -1));
    }
    /// Asks for a line and waits for it or the end.
    void next() {
        const std::size_t before = m_lines.size();
        m_reader->next();
        if (m_lines.size() == before) {
            EXPECT_TRUE(runLoop(m_loop));
        }
    }

    std::array<int, 2> m_pipe{-1, -1};
    QEventLoop m_loop;
    std::vector<std::string> m_lines;
    std::unique_ptr<ScriptReader> m_reader;
};

using Lines = std::vector<std::string>;

TEST_F(ScriptReaderTest, JoinsWhatArrivesInPiecesAndTheLastLineNeedsNoEnd) {
    write("half a ");
    QTimer::singleShot(20, &m_loop, [this] {
        write("line\nlast");
        closeWriter();
    });
    next();
    next();
    next();
    EXPECT_EQ(m_lines, (Lines{"half a line", "last", "(end)"}));
}

TEST_F(ScriptReaderTest, ManyLinesWithoutContentArePassedOver) {
    // Less than a pipe holds, and more than a stack does if each took a part of it.
    write(std::string(60'000, '\n') + "one\n");
    next();
    EXPECT_EQ(m_lines, Lines{"one"});
}

TEST_F(ScriptReaderTest, AFolderIsNoScript) {
    const int folder = ::open("/", O_RDONLY | O_CLOEXEC);
    ScriptReader reader(
        folder, [](const std::string&) { return true; },
        [this](bool failed) {
            EXPECT_TRUE(failed);
            m_loop.quit();
        });
    reader.next();
    EXPECT_TRUE(runLoop(m_loop));
    ::close(folder);
}

}  // namespace
}  // namespace drive
