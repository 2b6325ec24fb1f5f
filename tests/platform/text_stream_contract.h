#pragma once

#include "platform/file_system.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <string>

/// What every TextReader and TextWriter promises. A `Machine` is one of FileSystemContract.
template <typename Machine>
class TextStreamContract : public testing::Test {
protected:
    FileSystem& files() { return machine.files(); }

    void write(const std::string& path, const std::string& content)
    {
        const auto file = files().createTextFile(path);
        file->write(content);
        file->close();
    }

    std::string read(const std::string& path) { return files().openForReading(path)->readAll(); }

    Machine machine;
};

TYPED_TEST_SUITE_P(TextStreamContract);

TYPED_TEST_P(TextStreamContract, ALineEndsWithALineFeedOrBothSigns)
{
    this->write("C:\\a", "one\r\ntwo\n\r\nfour\rstill four\nlast");
    const auto reader = this->files().openForReading("C:\\a");
    for (const char* line : {"one", "two", "", "four\rstill four", "last"}) {
        EXPECT_FALSE(reader->atEnd());
        EXPECT_EQ(line, reader->readLine());
    }
    EXPECT_TRUE(reader->atEnd());
    EXPECT_EQ(62, errorOf([&] { reader->readLine(); }));
    EXPECT_EQ(62, errorOf([&] { reader->readAll(); }));
}

TYPED_TEST_P(TextStreamContract, AFinalLineEndBeginsNoLine)
{
    this->write("C:\\a", "one\r\n");
    const auto reader = this->files().openForReading("C:\\a");
    EXPECT_EQ("one", reader->readLine());
    EXPECT_TRUE(reader->atEnd());
}

TYPED_TEST_P(TextStreamContract, AnEmptyFileIsAtItsEnd)
{
    this->write("C:\\a", "");
    EXPECT_TRUE(this->files().openForReading("C:\\a")->atEnd());
    EXPECT_EQ(62, errorOf([&] { this->files().openForReading("C:\\a")->readAll(); }));
    EXPECT_EQ(62, errorOf([&] { this->files().openForReading("C:\\a")->readLine(); }));
}

TYPED_TEST_P(TextStreamContract, BytesAreReadAsTheyWereWritten)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\n') bytes += static_cast<char>(byte);
    this->write("C:\\a", bytes + "\n" + bytes);
    EXPECT_EQ(bytes, this->files().openForReading("C:\\a")->readLine());
    EXPECT_EQ(bytes + "\n" + bytes, this->read("C:\\a"));
}

TYPED_TEST_P(TextStreamContract, ReadingAllGivesWhatLinesLeft)
{
    this->write("C:\\a", "one\r\ntwo\r\nthree");
    const auto reader = this->files().openForReading("C:\\a");
    reader->readLine();
    EXPECT_EQ("two\r\nthree", reader->readAll());
    EXPECT_TRUE(reader->atEnd());
}

TYPED_TEST_P(TextStreamContract, ALongLineComesWhole)
{
    const std::string longLine(300'000, 'x');
    this->write("C:\\a", longLine + "\r\nnext");
    const auto reader = this->files().openForReading("C:\\a");
    EXPECT_EQ(longLine, reader->readLine());
    EXPECT_EQ("next", reader->readLine());
}

TYPED_TEST_P(TextStreamContract, ALineOfMoreThan64MiBRaises14AndIsPassedOver)
{
    const std::string longest(std::size_t{64} << 20, 'x');
    this->write("C:\\a", longest + "\r\n" + longest + "x\r\nnext");
    const auto reader = this->files().openForReading("C:\\a");
    EXPECT_EQ(longest.size(), reader->readLine().size());
    EXPECT_EQ(14, errorOf([&] { reader->readLine(); }));
    EXPECT_EQ("next", reader->readLine());
}

TYPED_TEST_P(TextStreamContract, AClosedStreamRaises91)
{
    this->write("C:\\a", "x\ny");
    const auto reader = this->files().openForReading("C:\\a");
    reader->close();
    reader->close();
    EXPECT_EQ(91, errorOf([&] { reader->atEnd(); }));
    EXPECT_EQ(91, errorOf([&] { reader->readLine(); }));
    EXPECT_EQ(91, errorOf([&] { reader->readAll(); }));

    const auto writer = this->files().openForAppending("C:\\a");
    writer->close();
    writer->close();
    EXPECT_EQ(91, errorOf([&] { writer->write("z"); }));
    EXPECT_EQ(91, errorOf([&] { writer->writeLine("z"); }));
    EXPECT_EQ(91, errorOf([&] { writer->flush(); }));
    EXPECT_EQ("x\ny", this->read("C:\\a"));
}

TYPED_TEST_P(TextStreamContract, AppendingGoesOnAtTheEnd)
{
    this->files().openForAppending("C:\\a")->writeLine("one");
    this->files().openForAppending("C:\\a")->writeLine("two");
    EXPECT_EQ("one\r\ntwo\r\n", this->read("C:\\a"));
}

TYPED_TEST_P(TextStreamContract, FlushedTextIsThereForOthers)
{
    const auto writer = this->files().createTextFile("C:\\a");
    writer->write("one");
    writer->flush();
    EXPECT_EQ("one", this->read("C:\\a"));
    writer->write(" two");
    writer->close();
    EXPECT_EQ("one two", this->read("C:\\a"));
}

TYPED_TEST_P(TextStreamContract, AWriterThatIsLetGoClosesItsFile)
{
    this->files().createTextFile("C:\\a")->write("one");
    EXPECT_EQ("one", this->read("C:\\a"));
}

TYPED_TEST_P(TextStreamContract, AFullDiskRaises61)
{
    int error = 0;
    this->machine.withRoomFor(1000, [&] {
        const auto writer = this->files().createTextFile("C:\\a");
        error = errorOf([&] {
            writer->write(std::string(2000, 'x'));
            writer->flush();
        });
    });
    EXPECT_EQ(61, error);
    this->machine.withRoomFor(1000, [&] {
        const auto writer = this->files().openForAppending("C:\\b");
        error = errorOf([&] {
            writer->writeLine(std::string(2000, 'x'));
            writer->close();
        });
    });
    EXPECT_EQ(61, error);
}

REGISTER_TYPED_TEST_SUITE_P(TextStreamContract, ALineEndsWithALineFeedOrBothSigns,
                            AFinalLineEndBeginsNoLine, AnEmptyFileIsAtItsEnd,
                            BytesAreReadAsTheyWereWritten, ReadingAllGivesWhatLinesLeft,
                            ALongLineComesWhole, ALineOfMoreThan64MiBRaises14AndIsPassedOver,
                            AClosedStreamRaises91, AppendingGoesOnAtTheEnd,
                            FlushedTextIsThereForOthers, AWriterThatIsLetGoClosesItsFile,
                            AFullDiskRaises61);
