#pragma once

#include "platform/file_system.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// What every FileSystem promises.
///
/// A `Machine` has a default constructor that gives an empty drive C: with folders for Windows and
/// for temporary files, `FileSystem& files()` and `void makeReadOnly(path)`.
template <typename Machine>
class FileSystemContract : public testing::Test {
protected:
    using Names = std::vector<std::string>;

    FileSystem& files() { return machine.files(); }

    void write(const std::string& path, const std::string& content)
    {
        const auto file = files().createTextFile(path);
        file->write(content);
        file->close();
    }

    std::string read(const std::string& path) { return files().openForReading(path)->readAll(); }

    Names namesIn(const std::string& folder)
    {
        Names names;
        for (const FileInfo& entry : files().entries(folder)) names.push_back(entry.name);
        return names;
    }

    Machine machine;
};

TYPED_TEST_SUITE_P(FileSystemContract);

TYPED_TEST_P(FileSystemContract, AFileThatWasWrittenIsThere)
{
    this->write("C:\\a.txt", "one");
    EXPECT_TRUE(this->files().fileExists("C:\\a.txt"));
    EXPECT_FALSE(this->files().folderExists("C:\\a.txt"));
    EXPECT_EQ("one", this->read("C:\\a.txt"));
    EXPECT_EQ(3, this->files().file("C:\\a.txt").size);
    EXPECT_EQ("a.txt", this->files().file("C:\\a.txt").name);
    EXPECT_FALSE(this->files().file("C:\\a.txt").folder);
}

TYPED_TEST_P(FileSystemContract, NamesMatchWithoutRegardToCase)
{
    this->files().createFolder("C:\\Logs");
    this->write("C:\\logs\\One.TXT", "x");
    EXPECT_TRUE(this->files().fileExists("c:\\LOGS\\one.txt"));
    EXPECT_EQ("x", this->read("C:\\LOGS\\ONE.txt"));
    EXPECT_EQ((std::vector<std::string>{"One.TXT"}), this->namesIn("C:\\Logs"));
    EXPECT_EQ(58, errorOf([&] { this->files().createFolder("C:\\LOGS"); }));
}

TYPED_TEST_P(FileSystemContract, WritingAnotherSpellingKeepsOneFile)
{
    this->write("C:\\One.txt", "first");
    this->write("C:\\ONE.TXT", "second");
    EXPECT_EQ("second", this->read("C:\\One.txt"));
    EXPECT_EQ((std::vector<std::string>{"One.txt"}), this->files().matching("C:\\o*.txt"));
}

TYPED_TEST_P(FileSystemContract, BothSeparatorsSeparate)
{
    this->files().createFolder("C:/Logs/");
    this->write("C:\\Logs/a.txt", "x");
    EXPECT_TRUE(this->files().fileExists("C:/Logs\\a.txt"));
    EXPECT_TRUE(this->files().folderExists("C:\\Logs\\"));
    EXPECT_TRUE(this->files().fileExists("C:\\Logs\\\\a.txt"));
}

TYPED_TEST_P(FileSystemContract, APathCannotClimbOutOfItsDrive)
{
    this->write("C:\\a.txt", "x");
    EXPECT_TRUE(this->files().fileExists("C:\\..\\..\\a.txt"));
    EXPECT_TRUE(this->files().folderExists("C:\\..\\..\\.."));
    EXPECT_FALSE(this->files().fileExists("C:\\..\\..\\..\\..\\..\\..\\..\\etc\\passwd"));
}

TYPED_TEST_P(FileSystemContract, AMissingFileRaises53)
{
    FileSystem& files = this->files();
    EXPECT_FALSE(files.fileExists("C:\\none.txt"));
    EXPECT_EQ(53, errorOf([&] { files.file("C:\\none.txt"); }));
    EXPECT_EQ(53, errorOf([&] { files.openForReading("C:\\none.txt"); }));
    EXPECT_EQ(53, errorOf([&] { files.deleteFile("C:\\none.txt"); }));
    EXPECT_EQ(53, errorOf([&] { files.clearAttributes("C:\\none.txt"); }));
    EXPECT_EQ(53, errorOf([&] { files.copyFile("C:\\none.txt", "C:\\b.txt"); }));
    EXPECT_FALSE(files.fileExists("C:\\b.txt"));
}

TYPED_TEST_P(FileSystemContract, AFolderIsNoFile)
{
    this->files().createFolder("C:\\Logs");
    EXPECT_FALSE(this->files().fileExists("C:\\Logs"));
    EXPECT_EQ(53, errorOf([&] { this->files().file("C:\\Logs"); }));
    EXPECT_EQ(53, errorOf([&] { this->files().deleteFile("C:\\Logs"); }));
    EXPECT_TRUE(this->files().folderExists("C:\\Logs"));
}

TYPED_TEST_P(FileSystemContract, AMissingFolderRaises76)
{
    FileSystem& files = this->files();
    EXPECT_FALSE(files.folderExists("C:\\None"));
    EXPECT_EQ(76, errorOf([&] { files.entries("C:\\None"); }));
    EXPECT_EQ(76, errorOf([&] { files.folderSize("C:\\None"); }));
    EXPECT_EQ(76, errorOf([&] { files.removeFolder("C:\\None"); }));
    EXPECT_EQ(76, errorOf([&] { files.changeFolder("C:\\None"); }));
    EXPECT_EQ(76, errorOf([&] { files.createFolder("C:\\None\\Below"); }));
    EXPECT_EQ(76, errorOf([&] { files.openForReading("C:\\None\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.openForAppending("C:\\None\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.createTextFile("C:\\None\\a.txt"); }));
    this->write("C:\\a.txt", "x");
    EXPECT_EQ(76, errorOf([&] { files.copyFile("C:\\a.txt", "C:\\None\\a.txt"); }));
}

TYPED_TEST_P(FileSystemContract, AFolderIsMadeOneLevelAtATimeAndOnce)
{
    FileSystem& files = this->files();
    files.createFolder("C:\\One");
    files.createFolder("C:\\One\\Two");
    EXPECT_TRUE(files.folderExists("C:\\One\\Two"));
    EXPECT_EQ(58, errorOf([&] { files.createFolder("C:\\One"); }));
    this->write("C:\\file", "x");
    EXPECT_EQ(58, errorOf([&] { files.createFolder("C:\\file"); }));
}

TYPED_TEST_P(FileSystemContract, EntriesAreFilesAndFoldersByName)
{
    this->files().createFolder("C:\\Logs");
    this->files().createFolder("C:\\Logs\\b");
    this->write("C:\\Logs\\c.txt", "123");
    this->write("C:\\Logs\\a.txt", "");
    const auto entries = this->files().entries("C:\\Logs\\");
    ASSERT_EQ(3u, entries.size());
    EXPECT_EQ("a.txt", entries[0].name);
    EXPECT_EQ("b", entries[1].name);
    EXPECT_TRUE(entries[1].folder);
    EXPECT_EQ("c.txt", entries[2].name);
    EXPECT_EQ(3, entries[2].size);
    EXPECT_TRUE(this->files().entries("C:\\Logs\\b").empty());
}

TYPED_TEST_P(FileSystemContract, APatternFindsPlainFilesByName)
{
    this->files().createFolder("C:\\P");
    this->files().createFolder("C:\\P\\HTfolder.xml");
    for (const char* name : {"ht1.XML", "HT2.xml", "HT10.xml", "other.xml", "HT.txt", "plain"})
        this->write(std::string("C:\\P\\") + name, "");
    struct Case {
        const char* because;
        const char* pattern;
        std::vector<std::string> expected;
    };
    const Case cases[] = {
        {"case doesn't matter, and a folder is no plain file",
         "C:\\P\\HT*.xml",
         {"ht1.XML", "HT10.xml", "HT2.xml"}},
        {"a question mark is one character", "C:\\P\\HT?.xml", {"ht1.XML", "HT2.xml"}},
        {"a name without a sign finds itself", "C:\\P\\other.XML", {"other.xml"}},
        {"*.* is every file, with a dot or without",
         "C:\\P\\*.*",
         {"HT.txt", "ht1.XML", "HT10.xml", "HT2.xml", "other.xml", "plain"}},
        {"nothing matches", "C:\\P\\zz*", {}},
        {"no such folder", "C:\\None\\*", {}},
        {"signs mean something in the last part alone", "C:\\*\\HT*.xml", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, this->files().matching(c.pattern));
    }
}

TYPED_TEST_P(FileSystemContract, AFolderIsAsBigAsAllFilesBelow)
{
    this->files().createFolder("C:\\F");
    this->files().createFolder("C:\\F\\G");
    EXPECT_EQ(0, this->files().folderSize("C:\\F"));
    this->write("C:\\F\\a", "12");
    this->write("C:\\F\\G\\b", "345");
    EXPECT_EQ(5, this->files().folderSize("C:\\F"));
}

TYPED_TEST_P(FileSystemContract, AFolderIsRemovedOnceItIsEmpty)
{
    this->files().createFolder("C:\\F");
    this->files().createFolder("C:\\F\\G");
    this->files().createFolder("C:\\Fother");
    this->write("C:\\F\\G\\b", "x");
    EXPECT_EQ(70, errorOf([&] { this->files().removeFolder("C:\\F"); }));
    EXPECT_EQ(70, errorOf([&] { this->files().removeFolder("C:\\F\\G"); }));
    EXPECT_TRUE(this->files().fileExists("C:\\F\\G\\b"));
    this->files().deleteFile("C:\\F\\G\\b");
    this->files().removeFolder("C:\\F\\G");
    this->files().removeFolder("C:\\F");
    EXPECT_FALSE(this->files().folderExists("C:\\F"));
    EXPECT_TRUE(this->files().folderExists("C:\\Fother"));
}

TYPED_TEST_P(FileSystemContract, ACopyReplacesItsTarget)
{
    this->write("C:\\a", "new content");
    this->write("C:\\b", "old");
    this->files().copyFile("C:\\a", "C:\\b");
    EXPECT_EQ("new content", this->read("C:\\b"));
    EXPECT_EQ("new content", this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, AReadOnlyFileStaysAsItIs)
{
    FileSystem& files = this->files();
    this->write("C:\\a", "keep");
    this->write("C:\\b", "other");
    this->machine.makeReadOnly("C:\\a");
    EXPECT_TRUE(files.file("C:\\a").readOnly);
    EXPECT_FALSE(files.file("C:\\b").readOnly);
    EXPECT_EQ(70, errorOf([&] { files.deleteFile("C:\\a"); }));
    EXPECT_EQ(70, errorOf([&] { files.copyFile("C:\\b", "C:\\a"); }));
    EXPECT_EQ(70, errorOf([&] { files.createTextFile("C:\\a"); }));
    EXPECT_EQ(70, errorOf([&] { files.openForAppending("C:\\a"); }));
    EXPECT_EQ("keep", this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, ClearedAttributesMakeAFileWritable)
{
    this->write("C:\\a", "old");
    this->machine.makeReadOnly("C:\\a");
    this->files().clearAttributes("C:\\a");
    EXPECT_FALSE(this->files().file("C:\\a").readOnly);
    this->write("C:\\a", "new");
    EXPECT_EQ("new", this->read("C:\\a"));
    this->files().deleteFile("C:\\a");
    EXPECT_FALSE(this->files().fileExists("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, ALineEndsWithALineFeedOrBothSigns)
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

TYPED_TEST_P(FileSystemContract, AFinalLineEndBeginsNoLine)
{
    this->write("C:\\a", "one\r\n");
    const auto reader = this->files().openForReading("C:\\a");
    EXPECT_EQ("one", reader->readLine());
    EXPECT_TRUE(reader->atEnd());
}

TYPED_TEST_P(FileSystemContract, AnEmptyFileIsAtItsEnd)
{
    this->write("C:\\a", "");
    EXPECT_TRUE(this->files().openForReading("C:\\a")->atEnd());
    EXPECT_EQ(62, errorOf([&] { this->files().openForReading("C:\\a")->readAll(); }));
    EXPECT_EQ(62, errorOf([&] { this->files().openForReading("C:\\a")->readLine(); }));
}

TYPED_TEST_P(FileSystemContract, BytesAreReadAsTheyWereWritten)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\n') bytes += static_cast<char>(byte);
    this->write("C:\\a", bytes + "\n" + bytes);
    EXPECT_EQ(bytes, this->files().openForReading("C:\\a")->readLine());
    EXPECT_EQ(bytes + "\n" + bytes, this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, ReadingAllGivesWhatLinesLeft)
{
    this->write("C:\\a", "one\r\ntwo\r\nthree");
    const auto reader = this->files().openForReading("C:\\a");
    reader->readLine();
    EXPECT_EQ("two\r\nthree", reader->readAll());
    EXPECT_TRUE(reader->atEnd());
}

TYPED_TEST_P(FileSystemContract, ALongLineComesWhole)
{
    const std::string longLine(300'000, 'x');
    this->write("C:\\a", longLine + "\r\nnext");
    const auto reader = this->files().openForReading("C:\\a");
    EXPECT_EQ(longLine, reader->readLine());
    EXPECT_EQ("next", reader->readLine());
}

TYPED_TEST_P(FileSystemContract, AClosedStreamRaises91)
{
    this->write("C:\\a", "x\ny");
    const auto reader = this->files().openForReading("C:\\a");
    reader->close();
    reader->close();
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

TYPED_TEST_P(FileSystemContract, AppendingGoesOnAtTheEnd)
{
    this->files().openForAppending("C:\\a")->writeLine("one");
    this->files().openForAppending("C:\\a")->writeLine("two");
    EXPECT_EQ("one\r\ntwo\r\n", this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, FlushedTextIsThereForOthers)
{
    const auto writer = this->files().createTextFile("C:\\a");
    writer->write("one");
    writer->flush();
    EXPECT_EQ("one", this->read("C:\\a"));
    writer->write(" two");
    writer->close();
    EXPECT_EQ("one two", this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, ANewFileIsModifiedNow)
{
    this->write("C:\\a", "x");
    const FileInfo first = this->files().file("C:\\a");
    this->write("C:\\b", "x");
    const FileInfo second = this->files().file("C:\\b");
    EXPECT_LE(first.modified, second.modified);
    EXPECT_GT(first.modified.days, 36526.0) << "later than the year 2000";
}

TYPED_TEST_P(FileSystemContract, APathWithoutADriveStartsInTheCurrentFolder)
{
    this->files().createFolder("C:\\Logs");
    this->files().createFolder("C:\\Logs\\Sub");
    this->files().changeDrive("C:");
    this->files().changeFolder("C:\\Logs");
    this->write("a.txt", "x");
    EXPECT_TRUE(this->files().fileExists("C:\\Logs\\a.txt"));
    this->files().changeFolder("Sub");
    EXPECT_TRUE(this->files().fileExists("..\\a.txt"));
    EXPECT_EQ(68, errorOf([&] { this->files().changeDrive("Q:"); }));
    EXPECT_TRUE(this->files().fileExists("..\\a.txt"));
}

TYPED_TEST_P(FileSystemContract, ADriveHasANameAndSpace)
{
    EXPECT_EQ("C:", this->files().driveName("C:\\x\\y"));
    EXPECT_EQ("", this->files().driveName("x\\y"));
    const DiskSpace space = this->files().diskSpace("C:\\");
    EXPECT_GT(space.totalBytes, 0);
    EXPECT_LE(space.freeBytes, space.totalBytes);
    EXPECT_EQ(76, errorOf([&] { this->files().diskSpace("Q:\\"); }));
}

TYPED_TEST_P(FileSystemContract, SpecialFoldersAreThere)
{
    FileSystem& files = this->files();
    EXPECT_TRUE(files.folderExists(files.specialFolder(SpecialFolder::windows)));
    EXPECT_TRUE(files.folderExists(files.specialFolder(SpecialFolder::temporary)));
}

TYPED_TEST_P(FileSystemContract, ANameThatIsNotShortenedStays)
{
    this->write("C:\\a long name.txt", "x");
    EXPECT_EQ("C:\\a long name.txt", this->files().longPathName("C:\\a long name.txt"));
    EXPECT_EQ("C:\\none.txt", this->files().longPathName("C:\\none.txt"));
}

REGISTER_TYPED_TEST_SUITE_P(
    FileSystemContract, AFileThatWasWrittenIsThere, NamesMatchWithoutRegardToCase,
    WritingAnotherSpellingKeepsOneFile, BothSeparatorsSeparate, APathCannotClimbOutOfItsDrive,
    AMissingFileRaises53, AFolderIsNoFile, AMissingFolderRaises76,
    AFolderIsMadeOneLevelAtATimeAndOnce, EntriesAreFilesAndFoldersByName,
    APatternFindsPlainFilesByName, AFolderIsAsBigAsAllFilesBelow, AFolderIsRemovedOnceItIsEmpty,
    ACopyReplacesItsTarget, AReadOnlyFileStaysAsItIs, ClearedAttributesMakeAFileWritable,
    ALineEndsWithALineFeedOrBothSigns, AFinalLineEndBeginsNoLine, AnEmptyFileIsAtItsEnd,
    BytesAreReadAsTheyWereWritten, ReadingAllGivesWhatLinesLeft, ALongLineComesWhole,
    AClosedStreamRaises91, AppendingGoesOnAtTheEnd, FlushedTextIsThereForOthers,
    ANewFileIsModifiedNow, APathWithoutADriveStartsInTheCurrentFolder, ADriveHasANameAndSpace,
    SpecialFoldersAreThere, ANameThatIsNotShortenedStays);
