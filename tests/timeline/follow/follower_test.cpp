#include "timeline/follow/follower.h"

#include "runtime/run_time_error.h"
#include "support/temporary_folder.h"
#include "system/root_folder.h"
#include "timeline/sources/log_guess.h"
#include "timeline/sources/log_source.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace timeline {
namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

const std::string firstLog = "diag_KoCSMgr_20250220_140000.txt";
const std::string otherLog = "diag_KoTskSvr_20250220_140000.txt";

class FollowerTest : public testing::Test {
protected:
    static std::string line(const std::string& clock, const std::string& trace)
    {
        return "15:" + clock + ":000,Conv,12,CallFlow,7," + trace + "\r\n";
    }

    void append(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::app | std::ios::binary) << bytes;
    }

    std::unique_ptr<Source> open(const std::string& path)
    {
        if (refused == path) throw RunTimeError(runTimeErrors::permissionDenied, path + " is shut");
        ++opened;
        const LogName name = readLogName(lastNameOf(path));
        LogFacts facts;
        facts.source.name = lastNameOf(path);
        facts.source.path = path;
        facts.source.process = name.process;
        facts.opened = name.opened;
        return std::make_unique<LogSource>(facts, std::make_shared<KeptFile>(files, path));
    }

    void follow(const Texts& names, Follower::Order order = Follower::Order::ofTime,
                Filter filter = Filter())
    {
        for (const std::string& name : names) {
            newLogs.watchProcessOf(folder / name);
            timeline.add(open(folder / name));
        }
        holdBackHalfLines(timeline);
        Progress progress;
        timeline.read(filter, progress);
        timeline.forgetRows();
        follower.emplace(
            timeline, filter, [this](const std::string& path) { return open(path); }, newLogs,
            order);
        for (std::size_t at = 0; at < names.size(); ++at) EXPECT_TRUE(follower->follow(at));
        EXPECT_EQ(Texts(), look());
        EXPECT_EQ(Texts(), notices);
    }

    /// The traces that came; `notices` has what was told.
    Texts look(std::chrono::milliseconds later = 100ms)
    {
        now += later;
        const News news = follower->look(now);
        notices = news.notices;
        Texts traces;
        Record record;
        for (const IndexRow& row : news.rows) {
            timeline.record(row, record);
            traces.push_back((row.belongsToRowBefore() ? "+" : "") + std::string(record.trace));
        }
        EXPECT_EQ(0u, timeline.size()) << "what was shown is kept nowhere";
        return traces;
    }

    TemporaryFolder folder;
    Timeline timeline;
    NewLogs newLogs;
    std::shared_ptr<OpenFiles> files = std::make_shared<OpenFiles>(8);
    std::optional<Follower> follower;
    std::chrono::steady_clock::time_point now;
    Texts notices;
    std::string refused;
    int opened = 0;
};

TEST_F(FollowerTest, FindsTheLinesThatComeAndEachOnce)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    EXPECT_EQ(Texts(), look());
    append(firstLog, line("00:01", "one") + line("00:02", "two"));
    EXPECT_EQ((Texts{"one", "two"}), look());
    EXPECT_EQ(Texts(), look());
    append(firstLog, line("00:03", "three"));
    EXPECT_EQ(Texts{"three"}, look());
    EXPECT_EQ(Texts(), notices);
}

TEST_F(FollowerTest, HoldsALineBackUntilItIsWhole)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    append(firstLog, "15:00:01:000,Conv,12,Call");
    EXPECT_EQ(Texts(), look());
    append(firstLog, "Flow,7,in two halves\r");
    EXPECT_EQ(Texts(), look());
    append(firstLog, "\n");
    EXPECT_EQ(Texts{"in two halves"}, look());
}

TEST_F(FollowerTest, LetsThroughWhatTheFilterTakesWithTheLinesThatComeLater)
{
    folder.write(firstLog, line("00:00", "old"));
    Choice choice;
    choice.patterns.push_back(std::make_shared<TextPattern>(TextPattern::Kind::text, "wanted"));
    follow({firstLog}, Follower::Order::ofLogs, Filter(choice));
    append(firstLog, line("00:01", "other") + line("00:02", "wanted"));
    EXPECT_EQ(Texts{"wanted"}, look());
    append(firstLog, "  its own line\r\n");
    EXPECT_EQ(Texts{"+  its own line"}, look());
    append(firstLog, line("00:03", "other"));
    EXPECT_EQ(Texts(), look());
    append(firstLog, "  a line of the other\r\n");
    EXPECT_EQ(Texts(), look());
}

TEST_F(FollowerTest, MergesWhatCameWithinOneLookByTime)
{
    folder.write(firstLog, line("00:00", "old"));
    folder.write(otherLog, line("00:00", "old"));
    follow({firstLog, otherLog});
    append(firstLog, line("00:02", "second") + "  its own line\r\n" + line("00:04", "fourth"));
    append(otherLog, line("00:01", "first") + line("00:03", "third"));
    EXPECT_EQ((Texts{"first", "second", "+  its own line", "third", "fourth"}), look());
}

TEST_F(FollowerTest, ReadsALogAnewThatWasCutOff)
{
    folder.write(firstLog, line("00:00", "old") + line("00:01", "older"));
    follow({firstLog});
    folder.write(firstLog, "");
    EXPECT_EQ(Texts(), look());
    EXPECT_EQ(Texts{firstLog + " was cut off, and is read from its beginning"}, notices);
    append(firstLog, line("00:02", "new"));
    EXPECT_EQ(Texts{"new"}, look());
    EXPECT_EQ(Texts(), notices);
    append(firstLog, line("00:03", "newer"));
    EXPECT_EQ(Texts{"newer"}, look());
    folder.write(firstLog, line("00:04", "x"));
    EXPECT_EQ(Texts{"x"}, look());
    EXPECT_EQ(Texts{firstLog + " was cut off, and is read from its beginning"}, notices)
        << "each time";
    EXPECT_EQ(1u, timeline.sourceCount()) << "they do not pile up";
}

TEST_F(FollowerTest, ReadsALogAnewThatIsLongerButAnother)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    folder.write(firstLog, line("00:02", "new") + line("00:03", "longer than before"));
    EXPECT_EQ((Texts{"new", "longer than before"}), look());
    EXPECT_EQ(Texts{firstLog + " was written anew, and is read from its beginning"}, notices);
}

TEST_F(FollowerTest, ReadsARenamedLogToItsEndBeforeTheOneInItsPlace)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    append(firstLog, line("00:01", "last whole") + "15:00:02:000,Conv,12,CallFlow,7,last half");
    std::filesystem::rename(folder / firstLog, folder / (firstLog + ".1"));
    folder.write(firstLog, line("00:03", "first"));
    EXPECT_EQ((Texts{"last whole", "last half"}), look());
    EXPECT_EQ(Texts{firstLog + " is another file now, which is read from its beginning"}, notices);
    EXPECT_EQ(Texts{"first"}, look());
    append(firstLog, line("00:04", "second"));
    EXPECT_EQ(Texts{"second"}, look());
}

// On Windows a stream's file can't be renamed, and a file that is removed may keep its name until
// the last one that has it open is done.
#ifndef _WIN32
TEST_F(FollowerTest, ReadsOnWhatAWriterStillHasWhenTheNameIsGone)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    std::ofstream writer(folder / firstLog, std::ios::app | std::ios::binary);
    writer << line("00:01", "before") << std::flush;
    std::filesystem::rename(folder / firstLog, folder / "moved");
    EXPECT_EQ(Texts{"before"}, look());
    EXPECT_EQ(Texts{firstLog + " is gone; what comes in its place will be read"}, notices);
    writer << line("00:02", "after") << std::flush;
    EXPECT_EQ(Texts{"after"}, look());
    EXPECT_EQ(Texts(), notices) << "told once";
    std::filesystem::rename(folder / "moved", folder / firstLog);
    writer << line("00:03", "back") << std::flush;
    EXPECT_EQ(Texts{"back"}, look());
    EXPECT_EQ(Texts{firstLog + " is there again, and is read from where it ended"}, notices);
}

TEST_F(FollowerTest, ReadsWhatComesInThePlaceOfALogThatIsGone)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    std::filesystem::remove(folder / firstLog);
    EXPECT_EQ(Texts(), look());
    EXPECT_EQ(1u, notices.size());
    folder.write(firstLog, line("00:01", "new"));
    EXPECT_EQ(Texts(), look());
    EXPECT_EQ(Texts{firstLog + " is there again, and is read from its beginning"}, notices);
    EXPECT_EQ(Texts{"new"}, look());
    std::filesystem::remove(folder / firstLog);
    look();
    EXPECT_EQ(Texts{firstLog + " is gone; what comes in its place will be read"}, notices)
        << "told again";
}
#endif

TEST_F(FollowerTest, FollowsTheNewLogOfAProcessOnceASecond)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog}, Follower::Order::ofLogs);
    append(firstLog, line("59:59", "the last"));
    const std::string next = "diag_KoCSMgr_20250220_160000.txt";
    folder.write(next, "16:00:00:000,Conv,12,CallFlow,7,the first\r\n");
    folder.write("diag_KoTskSvr_20250220_160000.txt", line("00:00", "of another process"));
    folder.write("diag_KoCSMgr_20250220_160000_fmtd.txt", "15:00:00:000 (Conv,1,Call,1) a copy\n");
    EXPECT_EQ(Texts{"the last"}, look()) << "a folder is not listed at every look";
    append(firstLog, line("59:59", "the very last"));
    EXPECT_EQ((Texts{"the very last", "the first"}), look(1s));
    EXPECT_EQ(Texts{next + " is a new log, and is followed"}, notices);
    append(next, "16:00:01:000,Conv,12,CallFlow,7,the second\r\n");
    EXPECT_EQ(Texts{"the second"}, look());
    EXPECT_EQ(Texts(), look(1s));
    EXPECT_EQ(Texts(), notices) << "new once";
}

TEST_F(FollowerTest, BeginsANewLogOnceItHasALine)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    const std::string next = "diag_KoCSMgr_20250220_160000.txt";
    folder.write(next, "16:00:00:000,Conv");
    EXPECT_EQ(Texts(), look(1s));
    EXPECT_EQ(1, opened) << "nothing shows yet what its lines are like";
    append(next, ",12,CallFlow,7,whole\r\n");
    EXPECT_EQ(Texts{"whole"}, look());
    EXPECT_EQ(2, opened);
}

TEST_F(FollowerTest, TakesEveryNewLogOfAFolderThatIsWatched)
{
    folder.write(firstLog, line("00:00", "old"));
    newLogs.watchFolder(folder.path());
    follow({firstLog});
    folder.write(otherLog, line("00:01", "of another process"));
    folder.write("notes.txt", "not a log\n");
    EXPECT_EQ(Texts{"of another process"}, look(1s));
    EXPECT_EQ(Texts{otherLog + " is a new log, and is followed"}, notices);
}

TEST_F(FollowerTest, TakesALogUnderAnotherNameForNoNewOne)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    std::filesystem::rename(folder / firstLog, folder / "diag_KoCSMgr_20250220_140000_1.txt");
    EXPECT_EQ(Texts(), look(1s));
    EXPECT_EQ(Texts{firstLog + " is gone; what comes in its place will be read"}, notices);
}

TEST_F(FollowerTest, TellsOfANewLogThatCanNotBeOpenedOnceAndFollowsTheOthers)
{
    folder.write(firstLog, line("00:00", "old"));
    follow({firstLog});
    const std::string next = "diag_KoCSMgr_20250220_160000.txt";
    refused = folder / next;
    folder.write(next, line("00:00", "shut"));
    append(firstLog, line("00:01", "one"));
    EXPECT_EQ(Texts{"one"}, look(1s));
    EXPECT_EQ((Texts{next + " is a new log, and is followed", folder / next + " is shut"}),
              notices);
    append(next, line("00:02", "still"));
    EXPECT_EQ(Texts(), look());
    EXPECT_EQ(Texts(), notices);
    refused.clear();
    append(next, line("00:03", "open"));
    EXPECT_EQ((Texts{"shut", "still", "open"}), look());
}

#ifndef _WIN32
TEST_F(FollowerTest, TakesNoLinkForALogThatComes)
{
    folder.write(firstLog, line("00:00", "old"));
    folder.write("secret", line("00:09", "secret"));
    follow({firstLog});
    std::filesystem::create_symlink(folder / "secret", folder / "diag_KoCSMgr_20250220_160000.txt");
    EXPECT_EQ(Texts(), look(1s));
    std::filesystem::remove(folder / firstLog);
    std::filesystem::create_symlink(folder / "secret", folder / firstLog);
    EXPECT_EQ(Texts(), look());
    EXPECT_EQ(Texts{firstLog + " is gone; what comes in its place will be read"}, notices);
    EXPECT_EQ(Texts(), look());
}
#endif

TEST_F(FollowerTest, LooksAtManyLogsInTurn)
{
    Texts names;
    for (std::size_t at = 0; at < Follower::mostLooks + 10; ++at) {
        names.push_back("log" + std::to_string(at) + ".txt");
        folder.write(names.back(), line("00:00", "old"));
    }
    follow(names);
    look(); // the first look saw the others alone
    for (const std::string& name : names) append(name, line("00:01", "new"));
    std::size_t seen = look().size();
    EXPECT_EQ(Follower::mostLooks, seen);
    seen += look().size();
    EXPECT_EQ(names.size(), seen);
}

TEST_F(FollowerTest, FollowsNothingThatIsNoLogInAFile)
{
    timeline.add(std::make_unique<LogSource>(
        LogFacts(), std::make_shared<KeptFile>(files, folder.write("unpacked", "a line\n"))));
    Follower other(timeline, Filter(), {}, NewLogs(), Follower::Order::ofLogs);
    EXPECT_FALSE(other.follow(0)) << "a member of a cabinet has no path";
}

/// Follows a log whose rows a timeline keeps.
class KeepingFollower : public FollowerTest {
protected:
    void begin(FollowManner manner)
    {
        folder.write(firstLog, line("00:00", "one") + line("00:01", "two"));
        timeline.add(open(folder / firstLog));
        Progress progress;
        timeline.read(Filter(), progress);
        follower.emplace(
            timeline, Filter(), [this](const std::string& path) { return open(path); }, NewLogs(),
            Follower::Order::ofLogs, std::move(manner));
        ASSERT_TRUE(follower->follow(0));
    }

    Texts kept()
    {
        timeline.keep(follower->look(now += 100ms).rows);
        Texts traces;
        Record record;
        for (Timeline::Cursor cursor = timeline.begin(); const IndexRow* row = cursor.next();) {
            timeline.record(*row, record);
            traces.emplace_back(record.trace);
        }
        return traces;
    }
};

TEST_F(KeepingFollower, AddsSoManyRowsAtATimeAndTellsThatThereAreMore)
{
    FollowManner manner;
    manner.mostRows = 2;
    begin(std::move(manner));
    append(firstLog, line("00:02", "three") + line("00:03", "four") + line("00:04", "five"));
    EXPECT_EQ((Texts{"one", "two", "three", "four"}), kept());
    EXPECT_TRUE(follower->hasMore());
    EXPECT_EQ((Texts{"one", "two", "three", "four", "five"}), kept());
    EXPECT_FALSE(follower->hasMore());
    EXPECT_EQ(5u, timeline.lastLineOf(0));
}

TEST_F(KeepingFollower, WaitsUntilTheRowsOfALogThatWasCutOffMayGo)
{
    bool may = false;
    FollowManner manner;
    manner.mayExchange = [&](std::size_t number) { return number == 0 && may; };
    begin(std::move(manner));
    kept();
    folder.write(firstLog, line("00:05", "new"));
    timeline.keep(follower->look(now += 100ms).rows);
    EXPECT_EQ(2u, timeline.size()) << "they stay for as long as somebody has them";
    may = true;
    EXPECT_EQ(Texts{"new"}, kept());
}

TEST_F(KeepingFollower, KeepsTheRowsOfARenamedLogBesideThoseOfTheNewOne)
{
    FollowManner manner;
    manner.keepsRenamed = true;
    begin(std::move(manner));
    std::filesystem::rename(folder / firstLog, folder / "old.txt");
    folder.write(firstLog, line("00:05", "new"));
    kept();
    EXPECT_EQ((Texts{"one", "two", "new"}), kept());
    EXPECT_EQ(2u, timeline.sourceCount());
}

} // namespace
} // namespace timeline
