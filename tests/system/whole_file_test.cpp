#include "system/whole_file.h"

#include "support/temporary_folder.h"
#include "system/process.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

class ReplacementFileTest : public testing::Test {
protected:
    ReplacementFileTest() { box.write("target", "old"); }

    TemporaryFolder box;
    RootFolder root{box.path()};
};

TEST_F(ReplacementFileTest, TakesTheTargetsPlaceWhenItIsWhole)
{
    ReplacementFile file(root, "target");
    file.write("new");
    EXPECT_EQ("old", box.read("target"));
    file.commit(false);
    EXPECT_EQ("new", box.read("target"));
    EXPECT_THAT(root.names(""), testing::ElementsAre("target"));
}

TEST_F(ReplacementFileTest, LeavesNoTraceWithoutACommit)
{
    ReplacementFile(root, "target").write("new");
    EXPECT_EQ("old", box.read("target"));
    EXPECT_THAT(root.names(""), testing::ElementsAre("target"));
}

TEST_F(ReplacementFileTest, CanBeClosedBeforeItTakesItsPlace)
{
    ReplacementFile file(root, "target");
    file.write("new");
    file.close();
    EXPECT_FALSE(file.file().isOpen());
    file.commit(false);
    EXPECT_EQ("new", box.read("target"));
}

TEST_F(ReplacementFileTest, TakesThePlaceOfAFileThatIsReadAndOfOneThatIsReadOnly)
{
    {
        const FileDescriptor reading = root.openFile("target", forReading, 53);
        fs::permissions(box / "target", fs::perms::owner_read);
        ReplacementFile file(root, "target");
        file.write("new");
        file.commit(true);
        EXPECT_EQ("new", box.read("target"));
        EXPECT_EQ("old", readWholeFile(reading, 53));
    }
    EXPECT_THAT(root.names(""), testing::ElementsAre("target"));
}

TEST_F(ReplacementFileTest, DoesNotTakeThePlaceOfAFolder)
{
    box.write("folder/x");
    ReplacementFile file(root, "folder");
    EXPECT_EQ(70, errorOf([&] { file.commit(false); }));
    EXPECT_TRUE(box.exists("folder/x"));
}

TEST_F(ReplacementFileTest, ACopyHasTheBytesAndTheMomentOfItsSource)
{
    const std::string bytes(200'000, 'x');
    box.write("source", bytes);
    ASSERT_TRUE(setTimes(box / "source", {1'000'000'000, 0}));
    copyWholeFile(root.openFile("source", forReading, 53), root, "target");
    EXPECT_EQ(bytes, box.read("target"));
    EXPECT_EQ(1'000'000'000, root.facts("target")->modified.seconds);
}

TEST_F(ReplacementFileTest, AWholeFileIsReadUpToALimit)
{
    EXPECT_EQ("old", readWholeFile(root, "target", 53, 3));
    EXPECT_EQ(14, errorOf([&] { readWholeFile(root, "target", 53, 2); }));
    EXPECT_EQ(53, errorOf([&] { readWholeFile(root, "none", 53); }));
    EXPECT_EQ("old", readMachineFile(box / "target", 53));
}

TEST_F(ReplacementFileTest, IsSweptWhenItsProgramHasEnded)
{
    box.write(".new-999999999-1");
    box.write(".new-" + std::to_string(ownProcess()) + "-1");
    sweepReplacementFiles(root, "");
    EXPECT_FALSE(box.exists(".new-999999999-1"));
    EXPECT_TRUE(box.exists(".new-" + std::to_string(ownProcess()) + "-1"));
}

TEST(EndedProcess, IsTheNumberOfNoProgramAndNothingElse)
{
    EXPECT_TRUE(isEndedProcess("999999999"));
    EXPECT_FALSE(isEndedProcess(std::to_string(ownProcess())));
    for (const char* text : {"", "0", "x", "-1", "12 ", "9999999999"})
        EXPECT_FALSE(isEndedProcess(text)) << text;
}

} // namespace
