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

TEST_F(ReplacementFileTest, AllowsWhatAnotherFileAllows)
{
    fs::permissions(box / "target", fs::perms(0640));
    ReplacementFile file(root, "other", OthersMay::read);
    file.resemble(root.openFile("target", forReading, 53));
    file.commit(false);
    EXPECT_EQ(fs::perms(0640), fs::status(box / "other").permissions());
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
