#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/files/BinaryFile.h"
#include "platform/files/TextReader.h"
#include "platform/files/TextWriter.h"
#include "tests/support/TestFolder.h"

namespace platform {
namespace {

class TextFilesTest : public ::testing::Test {
  protected:
    /// The lines of a file with that content, read with that limit, each followed by '|'.
    std::string linesOf(std::string_view content, std::size_t limit) {
        auto reader = TextReader::open(folder.write("in", content));
        std::vector<char> buffer(limit);
        std::string lines;
        while (const std::size_t length = reader->readLine(buffer.data(), limit)) {
            EXPECT_EQ(buffer[length], '\0');
            lines += std::string(buffer.data(), length) + "|";
        }
        return lines;
    }

    TestFolder folder;
};

TEST_F(TextFilesTest, LinesAreReadAsText) {
    struct Case {
        std::string content;
        std::size_t limit;
        std::string lines;
    };
    const Case cases[] = {
        {"", 10, ""},
        {"one\r\ntwo\r\n", 10, "one\n|two\n|"},
        {"one\ntwo", 10, "one\n|two|"},
        {"\r\n\r\n", 10, "\n|\n|"},
        {"a\rb\r\r\nc\r", 10, "a\rb\r\n|c\r|"},  // a CR alone is kept
        {"abcdef\r\ng", 4, "abc|def|\n|g|"},     // at most limit - 1 bytes
        {"abc\n", 5, "abc\n|"},
        {"ab", 2, "a|b|"},
        {"ab\x1A"
         "cd\n",
         10, "ab|"},
        {"\x1A", 10, ""},
        {"a\r\x1A\n", 10, "a\r|"},
        {std::string("a\0b\nc", 5), 10, std::string("a\0b\n|c|", 7)},
    };
    for (const auto& row : cases) EXPECT_EQ(linesOf(row.content, row.limit), row.lines) << row.content;
}

TEST_F(TextFilesTest, LineEndsAndEndMarksMayLieAtAnyPlace) {
    // The reader works in blocks of a power of two; every place around such a border is tried.
    for (const std::size_t border : {16U * 1024, 32U * 1024, 64U * 1024}) {
        for (std::size_t before = border - 3; before <= border + 1; ++before) {
            const std::string run(before, 'x');
            EXPECT_EQ(linesOf(run + "\r\nnext", 100000), run + "\n|next|") << before;
            EXPECT_EQ(linesOf(run + "\r\r\n", 100000), run + "\r\n|") << before;
            EXPECT_EQ(linesOf(run + "\r", 100000), run + "\r|") << before;
            EXPECT_EQ(linesOf(run + "\r\x1A\n", 100000), run + "\r|") << before;
        }
    }
}

TEST_F(TextFilesTest, WhatCannotBeReadDoesNotOpen) {
    const FileSystem files = folder.asDrive();
    EXPECT_FALSE(TextReader::open(files, "C:\\none.txt"));
    EXPECT_FALSE(TextReader::open(files, "C:\\"));
    EXPECT_FALSE(TextWriter::open(files, "C:\\none\\x.txt"));
    EXPECT_FALSE(TextWriter::open(files, "C:\\"));
    folder.write("Page.HTM", "text");
    EXPECT_TRUE(TextReader::open(files, "C:\\page.htm"));
}

TEST_F(TextFilesTest, LinesAreWrittenAsText) {
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"one\ntwo", "one\r\ntwo"},
        {"\n\n", "\r\n\r\n"},
        {"a\r\n", "a\r\r\n"},  // the CR is text like any other
        {std::string("a\0\x1A\n", 4), std::string("a\0\x1A\r\n", 5)},
    };
    folder.write("out", "something that was longer before");
    for (const auto& [text, expected] : cases) {
        auto writer = TextWriter::open(folder / "out");
        ASSERT_TRUE(writer);
        writer->write(text);
        EXPECT_TRUE(writer->close());
        EXPECT_EQ(folder.read("out"), expected);
    }
}

TEST_F(TextFilesTest, WrittenLinesAreReadBack) {
    std::string text;
    for (std::size_t i = 0; i < 3000; ++i)
        text += std::string(i % 97, static_cast<char>('a' + i % 26)) + "\n";
    text += std::string(100000, 'z') + "\n";
    {
        auto writer = TextWriter::open(folder / "in");
        TextWriter moved = std::move(*writer);
        for (std::size_t at = 0; at < text.size(); at += 777)
            moved.write(std::string_view(text).substr(at, 777));
        // Closed by its end.
    }
    std::string back = linesOf(folder.read("in"), 30000);
    std::erase(back, '|');
    EXPECT_EQ(back, text);
}

TEST_F(TextFilesTest, AFullDiskIsTold) {
    auto writer = TextWriter::open(folder / "out");
    const FullDisk full(1000);
    writer->write(std::string(999, 'x') + "\n");
    EXPECT_FALSE(writer->close());
    EXPECT_FALSE(writer->close());
}

TEST_F(TextFilesTest, BinaryFilesAreReadByteForByte) {
    const std::string content("\x1A\r\n\0abc", 7);
    auto file = BinaryFile::open(folder.write("data", content));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 7U);
    std::string target(4, '?');
    const auto bytes = std::as_writable_bytes(std::span(target));
    EXPECT_EQ(file->read(bytes), 4U);
    EXPECT_EQ(target, content.substr(0, 4));
    EXPECT_EQ(file->readAt(1, bytes.first(2)), 2U);
    EXPECT_EQ(target.substr(0, 2), "\r\n");
    EXPECT_EQ(file->read(bytes), 3U);
    EXPECT_EQ(target.substr(0, 3), "abc");
    EXPECT_EQ(file->read(bytes), 0U);
    for (const std::uint64_t offset : {std::uint64_t{7}, std::uint64_t{1} << 40, ~std::uint64_t{0}}) {
        EXPECT_EQ(file->readAt(offset, bytes), 0U) << offset;
    }
    EXPECT_FALSE(BinaryFile::open(folder.path()));
    EXPECT_FALSE(BinaryFile::open(folder / "none"));
}

}  // namespace
}  // namespace platform
