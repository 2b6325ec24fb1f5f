#include "system/root_folder.h"

#include "support/temporary_folder.h"
#include "system/file_bytes.h"
#include "system/system_error.h"

#include <gmock/gmock.h>

#include <ctime>

namespace {

namespace fs = std::filesystem;
using testing::UnorderedElementsAre;

class RootFolderTest : public testing::Test {
protected:
    RootFolderTest() { box.write("in/a/File.txt", "inside"); }

    TemporaryFolder box;
    RootFolder root{(box.makeFolder("in"), box / "in")};
};

TEST_F(RootFolderTest, StaysTheFolderThatWasOpened)
{
    fs::rename(box / "in", box / "elsewhere");
    box.write("in/secret.txt", "secret");
    EXPECT_TRUE(root.isFile("a/File.txt"));
    EXPECT_FALSE(root.isFile("secret.txt"));
    EXPECT_THAT(root.names(""), UnorderedElementsAre("a"));
}

TEST_F(RootFolderTest, NoWayLeadsUpOutOfIt)
{
    box.write("out.txt", "secret");
    EXPECT_EQ(70, errorOf([&] { root.openFile("../out.txt", forReading, 53); }));
    EXPECT_EQ(70, errorOf([&] { root.openFile("a/../../out.txt", forReading, 53); }));
    EXPECT_EQ(70, errorOf([&] { root.names(".."); }));
    EXPECT_EQ(70, errorOf([&] { root.facts("a/../.."); }));
    EXPECT_EQ("Permission denied: " + (box / "in/../out.txt") + " leads out of the site",
              errorTextOf([&] { root.openFile("../out.txt", forReading, 53); }));
    EXPECT_TRUE(root.isFile("a/../a/./File.txt"));
}

TEST_F(RootFolderTest, AFolderBelowIsABoundOfItsOwn)
{
    box.write("in/b/x.txt", "x");
    const RootFolder below = root.below("a");
    EXPECT_THAT(below.names(""), UnorderedElementsAre("File.txt"));
    EXPECT_EQ(70, errorOf([&] { below.openFile("../b/x.txt", forReading, 53); }));
    EXPECT_EQ(76, errorOf([&] { root.below("a/File.txt"); }));
    EXPECT_FALSE(root.belowIfThere("none"));
    EXPECT_FALSE(root.belowIfThere("a/File.txt"));
    EXPECT_EQ(76, errorOf([&] { RootFolder(box / "none"); }));
    EXPECT_EQ(76, errorOf([&] { RootFolder(box / "in/a/File.txt"); }));
}

TEST_F(RootFolderTest, AFolderIsNoFile)
{
    for (const auto& opening : {forReading, FileOpening{FileAccess::write},
                                FileOpening{FileAccess::readAndWrite, Creation::ifMissing}})
        EXPECT_EQ(70, errorOf([&] { root.openFile("a", opening, 53); }));
    EXPECT_EQ(53, errorOf([&] { root.openFile("none", forReading, 53); }));
    EXPECT_EQ(53, errorOf([&] { root.openFile("a/File.txt/none", forReading, 53); }));
    EXPECT_EQ(76, errorOf([&] { root.openFile("none/x", {FileAccess::write}, 76); }));
    EXPECT_FALSE(root.isFile("a"));
    EXPECT_FALSE(root.isFolder("a/File.txt"));
}

TEST_F(RootFolderTest, OpensAFileAsItIsAsked)
{
    const FileOpening fresh{FileAccess::write, Creation::always};
    writeAll(root.openFile("new", fresh, 53), "one");
    EXPECT_EQ(58, errorOf([&] { root.openFile("new", fresh, 53); }));
    writeAll(root.openFile("new", {FileAccess::append, Creation::ifMissing}, 53), " two");
    EXPECT_EQ("one two", box.read("in/new"));
    writeAll(root.openFile("new", {FileAccess::readAndWrite}, 53), "ONE");
    EXPECT_EQ("ONE two", box.read("in/new"));
    EXPECT_EQ(53, errorOf([&] { root.openFile("other", {FileAccess::append}, 53); }));
}

TEST_F(RootFolderTest, WhatIsAppendedStandsBehindWhatOthersAppended)
{
    const FileOpening appending{FileAccess::readAndAppend, Creation::ifMissing};
    const FileDescriptor one = root.openFile("log", appending, 53);
    const FileDescriptor other = root.openFile("log", {FileAccess::append}, 53);
    writeAll(one, "1");
    writeAll(other, "2");
    writeAll(one, "3");
    EXPECT_EQ("123", box.read("in/log"));
    char bytes[4] = {};
    EXPECT_EQ(3u, readAt(one, bytes, sizeof bytes, 0));
    EXPECT_STREQ("123", bytes);
}

TEST_F(RootFolderTest, AFileThatIsReadCanBeWrittenRenamedAndRemovedMeanwhile)
{
    const FileDescriptor reading = root.openFile("a/File.txt", forReading, 53);
    writeAll(root.openFile("a/File.txt", {FileAccess::append}, 53), " more");
    root.rename("a/File.txt", "a/old.txt");
    root.removeFile("a/old.txt");
    char bytes[16] = {};
    EXPECT_EQ(11u, readAt(reading, bytes, sizeof bytes, 0));
    EXPECT_STREQ("inside more", bytes);
}

TEST_F(RootFolderTest, FindsNamesInAnyCase)
{
    EXPECT_EQ("a/File.txt", root.pathIgnoringCase({"A", "FILE.TXT"}));
    EXPECT_EQ("a/File.txt", root.pathIgnoringCase({"a", "File.txt"}));
    EXPECT_EQ("a/New/More", root.pathIgnoringCase({"A", "New", "More"}));
    EXPECT_EQ("", root.pathIgnoringCase({}));
    box.write("in/\xC3\xA4/\xE6\x97\xA5.txt");
    EXPECT_EQ("\xC3\xA4/\xE6\x97\xA5.txt", root.pathIgnoringCase({"\xC3\x84", "\xE6\x97\xA5.TXT"}));
}

TEST_F(RootFolderTest, TellsWhereAPathLies)
{
    EXPECT_EQ(box / "in/a/File.txt", root.machinePath("a/File.txt"));
    EXPECT_EQ(box / "in/a/new/more", root.machinePath("a/new/more"));
    EXPECT_EQ(box / "in", root.machinePath(""));
    EXPECT_EQ(box / "in/x", root.shown("x"));
}

TEST_F(RootFolderTest, FactsAreWhatTheSystemTells)
{
    const auto file = root.facts("a/File.txt");
    ASSERT_TRUE(file);
    EXPECT_EQ(FileKind::file, file->kind);
    EXPECT_EQ(6, file->size);
    EXPECT_EQ(1u, file->hardLinks);
    EXPECT_TRUE(isOurs(*file));
    EXPECT_FALSE(file->readOnly);
    EXPECT_NEAR(static_cast<double>(std::time(nullptr)), file->modified.seconds, 60);
    EXPECT_EQ(file->identity, root.unfollowedFacts("a/File.txt")->identity);
    EXPECT_EQ(file->identity, factsOf(box / "in/a/File.txt")->identity);
    EXPECT_EQ(file->identity, factsOf(root.openFile("a/File.txt", forReading, 53)).identity);
    EXPECT_NE(file->identity, root.facts("a")->identity);
    EXPECT_EQ(FileKind::folder, root.facts("a")->kind);
    EXPECT_EQ(FileKind::folder, root.facts("")->kind);
    EXPECT_FALSE(root.facts("none"));
    EXPECT_FALSE(root.unfollowedFacts("none/none"));
    EXPECT_FALSE(root.facts("a/File.txt/none"));
}

TEST_F(RootFolderTest, AMomentThatIsSetIsTheOneThatIsTold)
{
    const FileMoment moment{1'000'000'000, 123'456'700};
    EXPECT_TRUE(setTimes(box / "in/a/File.txt", moment));
    EXPECT_EQ(moment, root.facts("a/File.txt")->modified);
    EXPECT_FALSE(setTimes(box / "in/none", moment));
}

TEST_F(RootFolderTest, TellsTheRoomOfItsFileSystem)
{
    const FileSystemRoom room = root.room("a");
    EXPECT_LT(0, room.total);
    EXPECT_LE(0, room.free);
    EXPECT_LE(room.free, room.total);
    EXPECT_EQ(76, errorOf([&] { root.room("none"); }));
}

TEST_F(RootFolderTest, GivesAnotherName)
{
    box.write("in/b/x.txt", "x");
    root.rename("a/File.txt", "b/x.txt");
    EXPECT_EQ("inside", box.read("in/b/x.txt"));
    EXPECT_THAT(root.names("a"), testing::IsEmpty());
    EXPECT_EQ(58, errorOf([&] { root.rename("a", "b"); })) << "a folder that is not empty";
    root.rename("b", "a");
    EXPECT_EQ("inside", box.read("in/a/x.txt"));
    EXPECT_EQ(76, errorOf([&] { root.rename("none", "more"); }));
    EXPECT_EQ(76, errorOf([&] { root.rename("a", "none/more"); }));
}

TEST_F(RootFolderTest, RemovesFilesAndFolders)
{
    box.write("in/a/deep/y.txt", "12345");
    EXPECT_EQ(11, root.size("a"));
    EXPECT_EQ(70, errorOf([&] { root.removeEmptyFolder("a"); }));
    EXPECT_EQ(53, errorOf([&] { root.removeFile("a/none"); }));
    EXPECT_EQ(76, errorOf([&] { root.removeEmptyFolder("none"); }));
    root.removeFile("a/File.txt");
    EXPECT_THAT(root.names("a"), UnorderedElementsAre("deep"));
    root.removeFolder("a");
    EXPECT_FALSE(box.exists("in/a"));
    EXPECT_EQ(76, errorOf([&] { root.removeFolder("a"); }));
}

TEST_F(RootFolderTest, AReadOnlyFileKeepsItsFolder)
{
    fs::permissions(box / "in/a/File.txt", fs::perms::owner_read);
    EXPECT_EQ(70, errorOf([&] { root.removeFolder("a"); }));
    EXPECT_EQ("inside", box.read("in/a/File.txt"));
    root.allowWriting("a/File.txt");
    root.removeFolder("a");
    EXPECT_FALSE(box.exists("in/a"));
}

TEST_F(RootFolderTest, AFolderThatIsMissingIsToldInTheSystemsWords)
{
    for (const auto& [path, words] : {std::pair{"none", "No such file or directory"},
                                      std::pair{"a/File.txt", "Not a directory"}})
        try {
            root.below(path);
            ADD_FAILURE() << path;
        } catch (const SystemError& error) {
            EXPECT_EQ(76, error.number());
            EXPECT_EQ(words, error.systemMessage());
        }
}

TEST_F(RootFolderTest, MakesFolders)
{
    root.makeFolders("x/y/z");
    root.makeFolders("x/y/z");
    EXPECT_TRUE(root.isFolder("x/y/z"));
    EXPECT_EQ(58, errorOf([&] { root.makeFolder("x"); }));
    EXPECT_EQ(76, errorOf([&] { root.makeFolder("none/x"); }));
    EXPECT_THAT(root.names(""), UnorderedElementsAre("a", "x"));
}

TEST_F(RootFolderTest, AReadOnlyFileCanBeMadeWritable)
{
    fs::permissions(box / "in/a/File.txt", fs::perms::owner_read);
    EXPECT_TRUE(root.facts("a/File.txt")->readOnly);
    root.allowWriting("a/File.txt");
    EXPECT_FALSE(root.facts("a/File.txt")->readOnly);
    EXPECT_EQ(53, errorOf([&] { root.allowWriting("a"); })) << "a folder is no file";
    EXPECT_EQ(53, errorOf([&] { root.allowWriting("none"); }));
}

TEST_F(RootFolderTest, OpensWhatAPersonNamedThroughAnyWay)
{
    box.write("other/x.txt", "x");
    const RootFolder machine(box / "in", RootFolder::Bounds::machine);
    EXPECT_TRUE(machine.isFile("a/File.txt"));
    EXPECT_TRUE(machine.isFile("../other/x.txt"));
    EXPECT_TRUE(machine.isFile(box / "other/x.txt")) << "a whole path of the machine";
    EXPECT_TRUE(RootFolder("/", RootFolder::Bounds::machine).isFile(box / "other/x.txt"));
    EXPECT_TRUE(openMachineFile(box / "other/x.txt", forReading, 53).isOpen());
    EXPECT_EQ(53, errorOf([&] { openMachineFile(box / "other/none", forReading, 53); }));
    EXPECT_EQ(70, errorOf([&] { openMachineFile(box / "other", forReading, 53); }));
}

} // namespace
