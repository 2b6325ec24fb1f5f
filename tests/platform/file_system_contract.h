#pragma once

#include "platform/file_system.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// What every FileSystem promises; text_stream_contract.h has what it promises of its streams.
///
/// A `Machine` has a default constructor that gives a drive C: with folders for Windows and for
/// temporary files and an empty drive D:, `FileSystem& files()`, `makeReadOnly(path)` and
/// `withRoomFor(bytes, work)`, which calls `work` while no file may grow beyond so many.
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

TYPED_TEST_P(FileSystemContract, LettersBeyondAsciiHaveACaseToo)
{
    this->write("C:\\Caf\u00E9.txt", "x");
    EXPECT_EQ("x", this->read("C:\\CAF\u00C9.TXT"));
    EXPECT_EQ((std::vector<std::string>{"Caf\u00E9.txt"}),
              this->files().matching("C:\\caf\u00C9*"));
}

TYPED_TEST_P(FileSystemContract, TheEmptyPathLeadsNowhere)
{
    FileSystem& files = this->files();
    EXPECT_FALSE(files.fileExists(""));
    EXPECT_FALSE(files.folderExists(""));
    EXPECT_TRUE(files.matching("").empty());
    EXPECT_EQ(52, errorOf([&] { files.openForReading(""); }));
    EXPECT_EQ(52, errorOf([&] { files.createTextFile(""); }));
    EXPECT_EQ(52, errorOf([&] { files.entries(""); }));
    EXPECT_EQ(52, errorOf([&] { files.changeFolder(""); }));
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
    EXPECT_EQ(53, errorOf([&] { this->files().clearAttributes("C:\\Logs"); }));
    EXPECT_EQ(53, errorOf([&] { this->files().copyFile("C:\\Logs", "C:\\copy"); }));
    EXPECT_EQ(70, errorOf([&] { this->files().createTextFile("C:\\Logs"); }));
    EXPECT_EQ(70, errorOf([&] { this->files().openForAppending("C:\\Logs"); }));
    this->write("C:\\a.txt", "x");
    EXPECT_EQ(70, errorOf([&] { this->files().copyFile("C:\\a.txt", "C:\\Logs"); }));
    EXPECT_TRUE(this->files().folderExists("C:\\Logs"));
    EXPECT_FALSE(this->files().fileExists("C:\\copy"));
}

TYPED_TEST_P(FileSystemContract, AFileIsNoFolder)
{
    FileSystem& files = this->files();
    this->write("C:\\a.txt", "x");
    EXPECT_EQ(76, errorOf([&] { files.entries("C:\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.folderSize("C:\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.removeFolder("C:\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.changeFolder("C:\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.createFolder("C:\\a.txt\\below"); }));
    EXPECT_EQ(76, errorOf([&] { files.createTextFile("C:\\a.txt\\below"); }));
    EXPECT_TRUE(files.matching("C:\\a.txt\\*").empty());
    EXPECT_EQ("x", this->read("C:\\a.txt"));
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
    EXPECT_EQ(76, errorOf([&] { files.createPrivateFolder("C:\\None\\Below"); }));
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

TYPED_TEST_P(FileSystemContract, APrivateFolderIsAFolderOfTheUsersOwn)
{
    FileSystem& files = this->files();
    files.createPrivateFolder("C:\\Own");
    EXPECT_TRUE(files.folderExists("C:\\Own"));
    this->write("C:\\Own\\a.txt", "x");
    EXPECT_EQ("x", this->read("C:\\Own\\a.txt"));
    EXPECT_EQ(58, errorOf([&] { files.createPrivateFolder("C:\\OWN"); }));
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
    EXPECT_EQ(0, entries[1].size);
    EXPECT_FALSE(entries[0].folder);
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
        {"or none before a point", "C:\\P\\HT??.xml", {"ht1.XML", "HT10.xml", "HT2.xml"}},
        {"or none at the end", "C:\\P\\pl?????", {"plain"}},
        {"but not within a name", "C:\\P\\o?ther.xml", {}},
        {"a name ends in a point where one is asked for", "C:\\P\\pl*.*", {"plain"}},
        {"but not one before letters", "C:\\P\\pl*.x", {}},
        {"many signs in a row", "C:\\P\\**1**.*m*", {"ht1.XML", "HT10.xml"}},
        {"a name without a sign finds itself", "C:\\P\\other.XML", {"other.xml"}},
        {"*.* is every file, with a dot or without",
         "C:\\P\\*.*",
         {"HT.txt", "ht1.XML", "HT10.xml", "HT2.xml", "other.xml", "plain"}},
        {"nothing matches", "C:\\P\\zz*", {}},
        {"no such folder", "C:\\None\\*", {}},
        {"no such drive", "Q:\\*", {}},
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

TYPED_TEST_P(FileSystemContract, TheRootOfADriveStays)
{
    EXPECT_EQ(70, errorOf([&] { this->files().removeFolder("C:\\"); }));
    EXPECT_EQ(70, errorOf([&] { this->files().removeFolder("D:\\"); })) << "though it is empty";
    EXPECT_TRUE(this->files().folderExists("D:\\"));
}

TYPED_TEST_P(FileSystemContract, ACopyReplacesItsTarget)
{
    this->write("C:\\a", "new content");
    this->write("C:\\b", "old");
    this->files().copyFile("C:\\a", "C:\\b");
    EXPECT_EQ("new content", this->read("C:\\b"));
    EXPECT_EQ("new content", this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, ACopyIsAsOldAndAsReadOnlyAsItsSource)
{
    this->write("C:\\a", "x");
    this->machine.makeReadOnly("C:\\a");
    this->files().copyFile("C:\\a", "C:\\b");
    EXPECT_TRUE(this->files().file("C:\\b").readOnly);
    EXPECT_EQ(this->files().file("C:\\a").modified, this->files().file("C:\\b").modified);
}

TYPED_TEST_P(FileSystemContract, AFileIsNotCopiedOntoItself)
{
    this->write("C:\\a", "keep");
    EXPECT_EQ(70, errorOf([&] { this->files().copyFile("C:\\a", "C:\\A"); }));
    EXPECT_EQ("keep", this->read("C:\\a"));
}

TYPED_TEST_P(FileSystemContract, ACopyThatFindsNoRoomRaises61AndLeavesTheTargetAsItWas)
{
    this->write("C:\\a", std::string(100'000, 'x'));
    this->write("C:\\b", "old");
    int error = 0;
    this->machine.withRoomFor(
        50'000, [&] { error = errorOf([&] { this->files().copyFile("C:\\a", "C:\\b"); }); });
    EXPECT_EQ(61, error);
    EXPECT_EQ("old", this->read("C:\\b"));
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
}

TYPED_TEST_P(FileSystemContract, EachDriveHasACurrentFolderOfItsOwn)
{
    FileSystem& files = this->files();
    files.createFolder("C:\\Logs");
    files.createFolder("D:\\Other");
    files.changeFolder("C:\\Logs");
    files.changeFolder("D:\\Other");
    this->write("a.txt", "x");
    EXPECT_TRUE(files.fileExists("C:\\Logs\\a.txt")) << "C: is still the current drive";
    this->write("D:b.txt", "x");
    EXPECT_TRUE(files.fileExists("D:\\Other\\b.txt"));
    files.changeDrive("d:");
    EXPECT_TRUE(files.fileExists("b.txt"));
    EXPECT_TRUE(files.fileExists("C:a.txt"));
    files.changeFolder("\\");
    EXPECT_TRUE(files.folderExists("Other"));
}

TYPED_TEST_P(FileSystemContract, ADriveThatIsNotThereRaises68AndTheCurrentOneStays)
{
    this->write("a.txt", "x");
    for (const char* drive : {"Q:", "Q:\\", "no drive"})
        EXPECT_EQ(68, errorOf([&] { this->files().changeDrive(drive); })) << drive;
    EXPECT_TRUE(this->files().fileExists("C:\\a.txt"));
    EXPECT_TRUE(this->files().fileExists("a.txt"));
}

TYPED_TEST_P(FileSystemContract, ADriveHasANameAndSpace)
{
    EXPECT_EQ("C:", this->files().driveName("C:\\x\\y"));
    EXPECT_EQ("", this->files().driveName("x\\y"));
    EXPECT_EQ("", this->files().driveName(""));
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
    LettersBeyondAsciiHaveACaseToo, TheEmptyPathLeadsNowhere, WritingAnotherSpellingKeepsOneFile,
    BothSeparatorsSeparate, APathCannotClimbOutOfItsDrive, AMissingFileRaises53, AFolderIsNoFile,
    AFileIsNoFolder, AMissingFolderRaises76, AFolderIsMadeOneLevelAtATimeAndOnce,
    APrivateFolderIsAFolderOfTheUsersOwn, EntriesAreFilesAndFoldersByName,
    APatternFindsPlainFilesByName, AFolderIsAsBigAsAllFilesBelow, AFolderIsRemovedOnceItIsEmpty,
    TheRootOfADriveStays, ACopyReplacesItsTarget, ACopyIsAsOldAndAsReadOnlyAsItsSource,
    AFileIsNotCopiedOntoItself, ACopyThatFindsNoRoomRaises61AndLeavesTheTargetAsItWas,
    AReadOnlyFileStaysAsItIs, ClearedAttributesMakeAFileWritable, ANewFileIsModifiedNow,
    APathWithoutADriveStartsInTheCurrentFolder, EachDriveHasACurrentFolderOfItsOwn,
    ADriveThatIsNotThereRaises68AndTheCurrentOneStays, ADriveHasANameAndSpace,
    SpecialFoldersAreThere, ANameThatIsNotShortenedStays);
