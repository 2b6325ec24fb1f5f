#include "hosts/common/gather/gather_needs.h"

#include "support/fakes/fake_clock.h"
#include "support/fakes/files/fake_file_system.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LogsForFrames, AreDiagnosticLogsThenDataFilesWithoutFormattedCopies)
{
    FakeClock clock;
    FakeFileSystem files{clock};
    files.withFolder("C:\\Logs")
        .with("C:\\Logs\\data_B_1.txt")
        .with("C:\\Logs\\diag_A_1.txt")
        .with("C:\\Logs\\diag_A_1_fmtd.txt")
        .with("C:\\Logs\\notes.txt");
    EXPECT_THAT(logsForFrames(files, "C:\\Logs"), ElementsAre("diag_A_1.txt", "data_B_1.txt"));
    EXPECT_THAT(logsForFrames(files, "C:\\None"), IsEmpty());
    files.failing("C:\\Logs", 70);
    EXPECT_THAT(logsForFrames(files, "C:\\Logs"), IsEmpty());
}

TEST(LogFacts, AreThoseOfTheFileAndNoneOfOneThatHasGone)
{
    FakeClock clock;
    FakeFileSystem files{clock};
    files.withFolder("C:\\Logs").withSize("C:\\Logs\\diag_A_1.txt", 1234);
    ASSERT_TRUE(logFacts(files, "C:\\Logs", "diag_A_1.txt"));
    EXPECT_EQ(1234, logFacts(files, "C:\\Logs", "diag_A_1.txt")->size);
    EXPECT_FALSE(logFacts(files, "C:\\Logs", "diag_B_1.txt"));
}

TEST(RoomBelow, IsThatOfTheFolderAboveWhereThereIsNoneYet)
{
    TemporaryFolder folder;
    const auto there = roomBelow(folder / "");
    ASSERT_TRUE(there);
    EXPECT_GT(*there, 0);
    EXPECT_TRUE(roomBelow(folder / "not/yet/there"));
}

} // namespace
