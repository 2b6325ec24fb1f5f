#include "hosts/common/gather/gather_watch.h"

#include "hosts/common/gather/gather_watch_fixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GatherWatchTest, AGatherThatBroughtAllHasNothingToTell)
{
    job({"diag_A_1.txt"}, {"System"});
    const GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "x");
    machine.write("Out/System.csv", "x");
    const GatherOutcome outcome = watched.outcome();
    EXPECT_THAT(outcome.files, ElementsAre("System.csv", "diag_A_1_fmtd.txt"));
    EXPECT_THAT(outcome.sentences(), IsEmpty());
}

TEST_F(GatherWatchTest, ACancelIsToldWithWhatIsKeptAndNotWithWhatWasLeftOut)
{
    job({"diag_A_1.txt", "diag_B_1.txt"}, {"System"});
    GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "half of it");
    watched.cancelled();
    EXPECT_THAT(
        texts(watched.outcome().sentences()),
        ElementsAre("The gather was cancelled.", "What was gathered is kept in " + out + "."));
}

} // namespace
