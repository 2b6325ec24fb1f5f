#include "support/places.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Far more than a look takes: the machine may have much else to do.
constexpr milliseconds patience{20'000};

const std::string log = "diag_KoCSMgr_20250220_140000.txt";
const std::string otherLog = "diag_KoTskSvr_20250220_140000.txt";

std::string line(const std::string& clock, const std::string& trace)
{
    return "15:" + clock + ":000,Conv,12,CallFlow,7," + trace + "\r\n";
}

/// orvandiag while it follows logs of a folder that is no site.
class Following {
public:
    Following(const std::string& folder, std::vector<std::string> words) : errors_(folder + ".err")
    {
        words.insert(words.begin(),
                     {built::orvandiag, "--site", folder + "/no-site", "read", "--follow"});
        int ends[2];
        EXPECT_EQ(0, pipe(ends));
        child_ = fork();
        if (child_ == 0) {
            if (chdir(folder.c_str()) != 0) _exit(126);
            dup2(ends[1], STDOUT_FILENO);
            dup2(open(errors_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
            close(ends[0]);
            close(ends[1]);
            std::vector<char*> arguments;
            for (auto& word : words) arguments.push_back(word.data());
            arguments.push_back(nullptr);
            execv(arguments[0], arguments.data());
            _exit(127);
        }
        close(ends[1]);
        output_ = ends[0];
    }

    ~Following()
    {
        if (child_ > 0) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
        }
        closeOutput();
        std::filesystem::remove(errors_);
    }
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;

    /// The next line of the output; the empty text where none comes in time.
    std::string next(milliseconds wait = patience)
    {
        const auto until = Clock::now() + wait;
        std::size_t end = 0;
        while ((end = read_.find('\n')) == std::string::npos) {
            const auto left = std::chrono::duration_cast<milliseconds>(until - Clock::now());
            pollfd output{output_, POLLIN, 0};
            char part[4096];
            if (left.count() <= 0 || poll(&output, 1, static_cast<int>(left.count())) <= 0)
                return {};
            const ssize_t got = ::read(output_, part, sizeof part);
            if (got <= 0) return {};
            read_.append(part, static_cast<std::size_t>(got));
        }
        std::string first = read_.substr(0, end);
        read_.erase(0, end + 1);
        if (!first.empty() && first.back() == '\r') first.pop_back();
        return first;
    }

    /// What was told so far, once it has a text.
    std::string told(const std::string& text) const
    {
        std::string errors;
        for (const auto until = Clock::now() + patience; Clock::now() < until;) {
            std::ifstream stream(errors_);
            errors.assign(std::istreambuf_iterator<char>(stream), {});
            if (errors.find(text) != std::string::npos) break;
            std::this_thread::sleep_for(milliseconds(20));
        }
        return errors;
    }

    void closeOutput()
    {
        if (output_ >= 0) close(output_);
        output_ = -1;
    }

    /// Sends a signal, if it is one, and gives the status of the end: 128 and more for a signal.
    int end(int signal = 0)
    {
        if (signal != 0) kill(child_, signal);
        int state = 0;
        waitpid(child_, &state, 0);
        child_ = -1;
        return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    }

    /// The processor time that it has taken.
    std::chrono::nanoseconds processorTime() const
    {
        clockid_t clock{};
        timespec time{};
        EXPECT_EQ(0, clock_getcpuclockid(child_, &clock));
        EXPECT_EQ(0, clock_gettime(clock, &time));
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    }

private:
    std::string errors_;
    pid_t child_ = -1;
    int output_ = -1;
    std::string read_;
};

struct FollowTest : testing::Test {
    void append(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::app | std::ios::binary) << bytes;
    }

    static std::string raw(const std::string& clock, const std::string& trace)
    {
        const std::string whole = line(clock, trace);
        return whole.substr(0, whole.size() - 2);
    }

    TemporaryFolder folder;
};

TEST_F(FollowTest, ShowsTheLastRowsAndThenEachThatComes)
{
    std::string rows;
    for (int at = 10; at < 30; ++at) rows += line("00:" + std::to_string(at), "row");
    folder.write(log, rows);
    Following following(folder.path(), {log, "--format", "raw"});
    for (int at = 20; at < 30; ++at)
        EXPECT_EQ(raw("00:" + std::to_string(at), "row"), following.next());
    append(log, line("01:00", "one"));
    EXPECT_EQ(raw("01:00", "one"), following.next());
    append(log, "15:01:01:000,Conv,12,Cal");
    EXPECT_EQ("", following.next(milliseconds(400))) << "half a line waits";
    append(log, "lFlow,7,two\r\n");
    EXPECT_EQ(raw("01:01", "two"), following.next());
    EXPECT_EQ(0, following.end(SIGINT));
}

TEST_F(FollowTest, GoesOnOverACutARenamingAVanishingAndANewLog)
{
    folder.write(log, line("00:00", "old") + line("00:01", "last"));
    Following following(folder.path(), {log, "--format", "raw", "--tail", "1"});
    EXPECT_EQ(raw("00:01", "last"), following.next());

    folder.write(log, "");
    EXPECT_NE(std::string::npos, following.told("was cut off").find(log + " was cut off"));
    append(log, line("00:02", "after the cut"));
    EXPECT_EQ(raw("00:02", "after the cut"), following.next());

    append(log, line("00:03", "before the renaming"));
    std::filesystem::rename(folder / log, folder / "old.txt");
    folder.write(log, line("00:04", "after it"));
    EXPECT_EQ(raw("00:03", "before the renaming"), following.next());
    EXPECT_EQ(raw("00:04", "after it"), following.next());

    std::filesystem::remove(folder / log);
    EXPECT_NE(std::string::npos, following.told("is gone").find(log + " is gone"));
    folder.write(log, line("00:05", "back"));
    EXPECT_EQ(raw("00:05", "back"), following.next());

    append(log, line("00:06", "the last of this log"));
    folder.write("diag_KoCSMgr_20250220_160000.txt", line("00:07", "the first of the next"));
    EXPECT_EQ(raw("00:06", "the last of this log"), following.next());
    EXPECT_EQ(raw("00:07", "the first of the next"), following.next());
    EXPECT_NE(std::string::npos, following.told("is a new log").find("is a new log"));
    EXPECT_EQ(0, following.end(SIGTERM));
}

TEST_F(FollowTest, MergesTwoLogsAndKeepsTheFilter)
{
    folder.write(log, line("00:00", "old"));
    folder.write(otherLog, line("00:01", "old"));
    Following following(folder.path(), {log, otherLog, "--format", "csv", "--grep", "new",
                                        "--columns", "process,trace"});
    EXPECT_EQ("process,trace", following.next());
    append(log, line("00:02", "new here") + line("00:03", "other"));
    EXPECT_EQ("KoCSMgr,new here ", following.next());
    append(otherLog, line("00:04", "new there"));
    EXPECT_EQ("KoTskSvr,new there ", following.next());
    EXPECT_EQ(0, following.end(SIGINT));
}

TEST_F(FollowTest, WritesEveryFormatRowByRow)
{
    for (const std::string format : {"json", "otlp", "table"}) {
        SCOPED_TRACE(format);
        folder.write(log, line("00:00", "old"));
        Following following(folder.path(), {log, "--format", format});
        if (format == "table") {
            EXPECT_NE(std::string::npos, following.next().find("Timestamp"));
        }
        EXPECT_NE(std::string::npos, following.next().find("old"));
        append(log, line("00:01", "come"));
        EXPECT_NE(std::string::npos, following.next().find("come"));
        EXPECT_EQ(0, following.end(SIGINT));
        EXPECT_EQ("", following.next(milliseconds(0)));
    }
}

TEST_F(FollowTest, ShowsALineSoonAfterItWasWritten)
{
    folder.write(log, line("00:00", "old"));
    Following following(folder.path(), {log, "--format", "raw"});
    EXPECT_EQ(raw("00:00", "old"), following.next());
    auto longest = Clock::duration::zero();
    for (int at = 10; at < 20; ++at) {
        const auto written = Clock::now();
        append(log, line("01:" + std::to_string(at), "row"));
        ASSERT_EQ(raw("01:" + std::to_string(at), "row"), following.next());
        longest = std::max(longest, Clock::now() - written);
    }
    const auto shown = std::chrono::duration_cast<milliseconds>(longest).count();
    RecordProperty("longest_milliseconds", static_cast<int>(shown));
    std::cout << "the longest of ten took " << shown << " ms\n";
    EXPECT_LT(shown, 2000);
}

TEST_F(FollowTest, TakesNextToNoProcessorTimeWhenNothingComes)
{
    for (int at = 10; at < 30; ++at)
        folder.write("diag_KoCSMgr_20250220_1400" + std::to_string(at) + ".txt",
                     line("00:00", "old"));
    Following following(folder.path(), {".", "--tail", "1", "--format", "raw"});
    ASSERT_EQ(raw("00:00", "old"), following.next());
    std::this_thread::sleep_for(milliseconds(300)); // what it does at its beginning is not meant
    const auto before = following.processorTime();
    std::this_thread::sleep_for(milliseconds(2000));
    const auto taken =
        std::chrono::duration_cast<milliseconds>(following.processorTime() - before).count();
    std::cout << "2 s of nothing took " << taken << " ms\n";
    EXPECT_LT(taken, 50);
    EXPECT_EQ(0, following.end(SIGINT));
}

TEST_F(FollowTest, EndsQuietlyWhenNobodyReadsAnyMore)
{
    folder.write(log, line("00:00", "old"));
    Following following(folder.path(), {log, "--format", "raw"});
    EXPECT_EQ(raw("00:00", "old"), following.next());
    following.closeOutput();
    EXPECT_EQ(0, following.end()) << "though nothing comes that it could write";
    EXPECT_EQ("", following.told("")) << "nothing is told";
}

TEST_F(FollowTest, RefusesWhatCanNotBeFollowed)
{
    folder.write(log, line("00:00", "old"));
    const std::vector<std::vector<std::string>> refused = {
        {"-"}, {log, "-n", "3"}, {log, "--count"}, {log, "--histogram"}, {log, "--until", "15:00"}};
    for (const auto& words : refused) {
        SCOPED_TRACE(words.back());
        Following following(folder.path(), words);
        EXPECT_EQ(2, following.end());
        const std::string told = following.told("follow");
        EXPECT_NE(std::string::npos, told.find("follow")) << told;
        EXPECT_EQ(1, std::count(told.begin(), told.end(), '\n')) << told;
    }
}

TEST_F(FollowTest, RefusesWhatDoesNotGrow)
{
    folder.write(log, line("00:00", "old"));
    folder.write("made.ddf",
                 ".Set CabinetNameTemplate=..\\sound.cab\r\n.Set MaxDiskSize=CDROM\r\n\"" +
                     folder / log + "\"\r\n");
    ASSERT_EQ(0, std::system(("cd " + folder.path() + " && " + built::cabmaker +
                              " /f made.ddf > made.log 2>&1")
                                 .c_str()))
        << folder.read("made.log");
    std::filesystem::copy_file(std::string(built::data) + "/blankWPNDB.mdb", folder / "sound.mdb");
    for (const std::string name : {"sound.cab", "sound.mdb"}) {
        SCOPED_TRACE(name);
        Following following(folder.path(), {"./" + name});
        EXPECT_EQ(1, following.end());
        EXPECT_EQ("orvandiag: " + folder.path() + "/" + name +
                      " can't be followed: it is no log that grows\n",
                  following.told("followed"));
        EXPECT_EQ("", following.next(milliseconds(0)));
    }
}

} // namespace
