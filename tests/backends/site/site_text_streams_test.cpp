#include "backends/common/text_file_reader.h"
#include "backends/common/text_file_writer.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <random>
#include <vector>

namespace {

FileDescriptor toRead(const std::string& path)
{
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
}

FileDescriptor toWrite(const std::string& path, int flags = O_TRUNC)
{
    return FileDescriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | flags, 0666));
}

std::vector<std::string> linesOf(const std::string& path)
{
    TextFileReader reader(toRead(path));
    std::vector<std::string> lines;
    while (!reader.atEnd()) lines.emplace_back(reader.readLine());
    return lines;
}

TEST(TextFileReader, GivesLinesWithoutTheirEnds)
{
    struct Case {
        const char* because;
        std::string bytes;
        std::vector<std::string> lines;
    };
    const Case cases[] = {
        {"an empty file has none", "", {}},
        {"a last line needs no end", "a\nb", {"a", "b"}},
        {"a line end ends a line, it begins none", "a\nb\n", {"a", "b"}},
        {"both kinds of ends", "a\r\nb\nc\r\n", {"a", "b", "c"}},
        {"empty lines are lines", "\n\r\n\n", {"", "", ""}},
        {"a carriage return alone is text", "a\rb\r", {"a\rb\r"}},
        {"of two carriage returns one is text", "a\r\r\n", {"a\r"}},
        {"zero bytes are text",
         std::string("a\0b\n\0", 5),
         {std::string("a\0b", 3), std::string(1, '\0')}},
        {"bytes of a code page stay", "caf\xE9\n", {"caf\xE9"}},
    };
    const TemporaryFolder folder;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.lines, linesOf(folder.write("a.txt", c.bytes)));
    }
}

TEST(TextFileReader, GivesLinesOfAnyLengthAcrossItsBuffer)
{
    std::mt19937 random(3);
    std::vector<std::string> lines;
    std::string bytes;
    for (int i = 0; i < 400; ++i) {
        lines.emplace_back(random() % (i % 50 == 0 ? 700'000 : 3000),
                           static_cast<char>('a' + i % 26));
        bytes += lines.back() + (i % 2 == 0 ? "\n" : "\r\n");
    }
    lines.emplace_back(10'000'000, 'z');
    bytes += lines.back();
    const TemporaryFolder folder;

    EXPECT_TRUE(lines == linesOf(folder.write("a.txt", bytes)));
}

TEST(TextFileReader, PassesOverALineThatIsTooLong)
{
    const TemporaryFolder folder;
    const std::string longest(64U << 20, 'x');
    const auto path =
        folder.write("a.txt", "a\n" + longest + "\n" + longest + "x\nb\n" + longest + "y");
    TextFileReader reader(toRead(path));

    EXPECT_EQ("a", reader.readLine());
    EXPECT_EQ(longest.size(), reader.readLine().size());
    EXPECT_EQ(14, errorOf([&] { reader.readLine(); }));
    EXPECT_EQ("b", reader.readLine());
    EXPECT_EQ(14, errorOf([&] { reader.readLine(); }));
    EXPECT_TRUE(reader.atEnd());
}

TEST(TextFileReader, Raises62AtTheEnd)
{
    const TemporaryFolder folder;
    TextFileReader reader(toRead(folder.write("a.txt", "a")));
    reader.readLine();

    EXPECT_EQ(62, errorOf([&] { reader.readLine(); }));
    EXPECT_EQ(62, errorOf([&] { reader.readAll(); }));
}

TEST(TextFileReader, ReadsAllFromHereToTheEnd)
{
    const TemporaryFolder folder;
    const std::string rest(1'000'000, 'r');
    TextFileReader reader(toRead(folder.write("a.txt", "a\r\nb\r\n" + rest)));
    reader.readLine();

    EXPECT_EQ("b\r\n" + rest, reader.readAll());
    EXPECT_TRUE(reader.atEnd());
}

TEST(TextFileReader, SeesWhatIsAppendedAndSurvivesWhatIsCutOff)
{
    const TemporaryFolder folder;
    const auto path = folder.write("a.txt", "a\n");
    TextFileReader reader(toRead(path));
    EXPECT_EQ("a", reader.readLine());
    EXPECT_TRUE(reader.atEnd());

    std::ofstream(path, std::ios::app) << "b\nc\n";
    EXPECT_FALSE(reader.atEnd());
    EXPECT_EQ("b", reader.readLine());

    std::filesystem::resize_file(path, 0);
    EXPECT_EQ("c", reader.readLine()) << "it was read already";
    EXPECT_TRUE(reader.atEnd());
}

TEST(TextFileReader, TellsWhyAFileDoesNotRead)
{
    TextFileReader broken(toRead("/proc/self/mem")); // reading its first page fails
    EXPECT_EQ(57, errorOf([&] { broken.readLine(); }));
    EXPECT_EQ(57, errorOf([&] { broken.atEnd(); }));
}

TEST(TextFileReader, Raises91OnceClosed)
{
    const TemporaryFolder folder;
    TextFileReader reader(toRead(folder.write("a.txt", "a\nb\n")));
    reader.readLine();
    reader.close();
    reader.close();

    EXPECT_EQ(91, errorOf([&] { reader.readLine(); }));
    EXPECT_EQ(91, errorOf([&] { reader.readAll(); }));
    EXPECT_EQ(91, errorOf([&] { reader.atEnd(); }));
}

TEST(TextFileWriter, WritesBytesAsTheyAreAndLinesWithTheirEnds)
{
    const TemporaryFolder folder;
    const auto path = folder.write("a.txt", "old and longer");
    TextFileWriter writer(toWrite(path));
    writer.write(std::string("a\0\xE9\n", 4));
    writer.writeLine("line");
    writer.writeLine("");
    writer.close();

    EXPECT_EQ(std::string("a\0\xE9\nline\r\n\r\n", 12), folder.read("a.txt"));
}

TEST(TextFileWriter, AppendsAndMakesTheFile)
{
    const TemporaryFolder folder;
    TextFileWriter(toWrite(folder / "a.txt", O_APPEND)).writeLine("one");
    TextFileWriter(toWrite(folder / "a.txt", O_APPEND)).writeLine("two");

    EXPECT_EQ("one\r\ntwo\r\n", folder.read("a.txt")) << "the end of the object closes the file";
}

TEST(TextFileWriter, ShowsOthersWhatWasFlushed)
{
    const TemporaryFolder folder;
    TextFileWriter writer(toWrite(folder / "a.txt"));
    writer.writeLine("one");
    writer.flush();

    EXPECT_EQ("one\r\n", folder.read("a.txt"));
}

TEST(TextFileWriter, WritesAnyAmount)
{
    const TemporaryFolder folder;
    std::string expected;
    {
        TextFileWriter writer(toWrite(folder / "a.txt"));
        for (int i = 0; i < 100; ++i) {
            const std::string text(static_cast<std::size_t>(i) * 7001,
                                   static_cast<char>('a' + i % 26));
            writer.writeLine(text);
            expected += text + "\r\n";
        }
    }
    EXPECT_TRUE(expected == folder.read("a.txt"));
}

TEST(TextFileWriter, Raises61WhenTheDiskIsFull)
{
    const std::string large(300'000, 'x');
    {
        TextFileWriter writer(toWrite("/dev/full"));
        writer.write("buffered");
        EXPECT_EQ(61, errorOf([&] { writer.flush(); }));
        EXPECT_EQ(61, errorOf([&] { writer.close(); }));
    }
    TextFileWriter writer(toWrite("/dev/full", O_APPEND));
    EXPECT_EQ(61, errorOf([&] { writer.write(large); }));
    EXPECT_EQ(61, errorOf([&] { writer.writeLine(large); }));
    writer.close();
}

TEST(TextFileWriter, Raises91OnceClosed)
{
    const TemporaryFolder folder;
    TextFileWriter writer(toWrite(folder / "a.txt"));
    writer.close();
    writer.close();

    EXPECT_EQ(91, errorOf([&] { writer.write(""); }));
    EXPECT_EQ(91, errorOf([&] { writer.writeLine("a"); }));
    EXPECT_EQ(91, errorOf([&] { writer.flush(); }));
}

} // namespace
