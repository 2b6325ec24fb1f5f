#include "timeline/lines/line_reader.h"

#include "support/temporary_folder.h"
#include "system/root_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <vector>

namespace timeline {
namespace {

class LineReaderTest : public testing::Test {
protected:
    FileDescriptor open(const std::string& bytes)
    {
        return openMachineFile(folder.write("log.txt", bytes), forReading, 53);
    }

    static std::vector<std::string> linesOf(LineReader reader)
    {
        std::vector<std::string> lines;
        for (FileLine line; reader.next(line);) lines.emplace_back(line.text);
        return lines;
    }

    TemporaryFolder folder;
};

using Lines = std::vector<std::string>;

TEST_F(LineReaderTest, EndsLinesAtALineFeedWithOrWithoutACarriageReturn)
{
    const auto file = open("one\r\ntwo\n\nthr\ree\nlast");
    EXPECT_EQ((Lines{"one", "two", "", "thr\ree", "last"}), linesOf(LineReader(file)));
}

TEST_F(LineReaderTest, TellsWhereALineBeginsAndWhetherItHasAnEnd)
{
    const auto file = open("one\r\ntwo");
    LineReader reader(file);
    FileLine line;
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ(0u, line.offset);
    EXPECT_TRUE(line.ended);
    EXPECT_EQ(5u, reader.offset());
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ(5u, line.offset);
    EXPECT_FALSE(line.ended);
    EXPECT_FALSE(reader.next(line));
}

TEST_F(LineReaderTest, HasNoLineInAnEmptyFile)
{
    const auto file = open("");
    EXPECT_EQ(Lines{}, linesOf(LineReader(file)));
}

TEST_F(LineReaderTest, BeginsWhereItIsTold)
{
    const auto file = open("one\ntwo\nthree\n");
    EXPECT_EQ((Lines{"two", "three"}), linesOf(LineReader(file, 4)));
    LineReader reader(file);
    FileLine line;
    while (reader.next(line)) {
    }
    reader.goTo(8);
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ("three", line.text);
    reader.goTo(0);
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ("one", line.text);
}

TEST_F(LineReaderTest, GoesOnWithWhatIsWrittenBehindTheEnd)
{
    const auto file = open("one\ntw");
    LineReader reader(file);
    FileLine line;
    ASSERT_TRUE(reader.next(line));
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ("tw", line.text);
    std::ofstream(folder / "log.txt", std::ios::app) << "o\nthree\n";
    reader.goTo(line.offset);
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ("two", line.text);
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ("three", line.text);
}

TEST_F(LineReaderTest, CutsALineThatNobodyWouldRead)
{
    const std::string enormous(LineReader::longestLine * 3 + 17, 'x');
    const std::string fitting(LineReader::longestLine, 'y');
    const auto file = open("one\n" + enormous + "\r\n" + fitting + "\nlast\n" + enormous);
    LineReader reader(file);
    FileLine line;
    ASSERT_TRUE(reader.next(line));
    EXPECT_FALSE(line.cut);
    ASSERT_TRUE(reader.next(line));
    EXPECT_TRUE(line.cut);
    EXPECT_TRUE(line.ended);
    EXPECT_EQ(enormous.substr(0, LineReader::longestLine), line.text);
    EXPECT_EQ(4u, line.offset);
    ASSERT_TRUE(reader.next(line));
    EXPECT_FALSE(line.cut);
    EXPECT_EQ(fitting, line.text);
    ASSERT_TRUE(reader.next(line));
    EXPECT_EQ("last", line.text);
    ASSERT_TRUE(reader.next(line));
    EXPECT_TRUE(line.cut);
    EXPECT_FALSE(line.ended);
    EXPECT_FALSE(reader.next(line));
}

TEST_F(LineReaderTest, ReadsTheSameWhateverThePieces)
{
    std::mt19937 random(7);
    std::string bytes;
    Lines expected;
    for (int line = 0; line < 400; ++line) {
        expected.emplace_back(random() % 5 == 0 ? random() % 900 : random() % 40,
                              static_cast<char>('a' + line % 26));
        bytes += expected.back() + (random() % 2 == 0 ? "\n" : "\r\n");
    }
    const auto file = open(bytes);
    for (const std::size_t piece : {1u, 2u, 3u, 7u, 64u, 1000u, 100'000u})
        EXPECT_EQ(expected, linesOf(LineReader(file, 0, piece))) << piece;
}

} // namespace
} // namespace timeline
