#include "end_to_end/merged_reading.h"
#include "end_to_end/terminal.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Words = std::vector<std::string>;

constexpr int endedByInterrupt = 128 + SIGINT;

std::size_t charactersOf(const std::string& line)
{
    return static_cast<std::size_t>(std::count_if(line.begin(), line.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

/// What `read` shows a person, of whom the program knows no more than the terminal's width.
struct ReadingWidth : MergedReading {
    std::vector<std::string> lines(unsigned short columns, Words words) const
    {
        words.insert(words.begin(), {"--site", site.string(), "read"});
        std::vector<std::string> shown = linesOf(onTerminal(words, folder.string(), columns));
        for (std::string& line : shown)
            if (!line.empty() && line.back() == '\r') line.pop_back();
        return shown;
    }

    /// The line of the headers, and where in it one begins.
    static std::size_t placeOf(const std::string& header, const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
            if (line.find("  Trace") != std::string::npos) return line.find(header);
        return std::string::npos;
    }
};

TEST_F(ReadingWidth, OfEightyColumnsLeavesTracesThirty)
{
    for (const Words& words : {Words{}, {currentLog()}, {"--component", "CallFlow"}}) {
        SCOPED_TRACE(testing::PrintToString(words));
        const auto shown = lines(80, words);
        ASSERT_LT(10u, shown.size());
        const std::size_t trace = placeOf("  Trace", shown);
        ASSERT_NE(std::string::npos, trace);
        EXPECT_LE(trace + 2, 50u);
        for (const std::string& line : shown) ASSERT_LE(charactersOf(line), 80u) << line;
    }
}

TEST_F(ReadingWidth, OfEightyColumnsTellsTheDayOnce)
{
    const auto shown = lines(80, {"--since", "2025-02-18 23:00", "--until", "2025-02-19 01:00"});
    EXPECT_EQ(1, std::count(shown.begin(), shown.end(), "2025-02-18"));
    EXPECT_EQ(1, std::count(shown.begin(), shown.end(), "2025-02-19"));
    const auto day = std::find(shown.begin(), shown.end(), "2025-02-19");
    ASSERT_LT(day + 1, shown.end());
    EXPECT_THAT(day[-1], StartsWith("23:"));
    EXPECT_THAT(day[1], StartsWith("00:"));
}

TEST_F(ReadingWidth, OfEightyColumnsTellsOnceWhatAllRowsHave)
{
    const auto shown =
        lines(80, {"--process", "KoCSMgr", "--component", "CallFlow", "--tail", "5"});
    EXPECT_THAT(shown.front(), StartsWith("In all rows: Source CallSvc"));
    EXPECT_EQ(std::string::npos, placeOf("Source", shown));
}

TEST_F(ReadingWidth, ShowsAllWhereThereIsRoomAndWhereItIsAskedFor)
{
    const std::string whole = run({"read", "--tail", "5"}).out;
    EXPECT_THAT(whole, StartsWith("Moment                   Process"));
    EXPECT_THAT(whole, Not(HasSubstr("~")));
    EXPECT_EQ(linesOf(whole), lines(300, {"--tail", "5"}));
    EXPECT_EQ(linesOf(whole), lines(80, {"--tail", "5", "--wide"}));
    const auto chosen = lines(40, {"--tail", "5", "--columns", "moment,component,trace"});
    EXPECT_THAT(chosen.front(), StartsWith("Moment                   Component"));
}

TEST_F(ReadingWidth, IsKeptByAHistogram)
{
    for (const unsigned short columns : {30, 38, 60}) {
        const auto shown = lines(columns, {"--histogram"});
        ASSERT_LT(5u, shown.size());
        for (const std::string& line : shown) EXPECT_LE(charactersOf(line), columns) << line;
        EXPECT_THAT(shown.front(), HasSubstr("#"));
    }
}

TEST_F(ReadingWidth, TellsOfAFormattedCopyOnceAndToWhomItConcerns)
{
    const std::string logs = drive("KelmaOrvan/Logs").string();
    const std::string note = "is the formatted copy of a log beside it";
    const auto count = [&](const std::vector<std::string>& shown) {
        return std::count_if(shown.begin(), shown.end(), [&](const std::string& line) {
            return line.find(note) != std::string::npos;
        });
    };
    EXPECT_EQ(0, count(lines(200, {"--tail", "5"}))) << "of the server's own folder nobody asks";
    const auto named = lines(300, {logs, "--tail", "5"});
    EXPECT_EQ(1, count(named));
    EXPECT_THAT(named.back(), HasSubstr(note)) << "and it stands above no row";
    EXPECT_EQ("", run({"read", logs, "--tail", "5"}).err);
}

TEST_F(ReadingWidth, IsKeptByAListOfCalls)
{
    useExtendedSite();
    const Words words = {"--calls", "--since", "2025-02-19", "--until", "2025-02-19"};
    Words reading = words;
    reading.insert(reading.begin(), "read");
    const auto whole = linesOf(run(reading).out);
    EXPECT_THAT(whole.front(), HasSubstr("lasted"));
    EXPECT_EQ(whole, lines(300, words));
    Words wide = words;
    wide.push_back("--wide");
    EXPECT_EQ(whole, lines(80, wide));
    const auto shown = lines(80, words);
    ASSERT_EQ(whole.size(), shown.size());
    EXPECT_THAT(shown.front(), testing::ContainsRegex("^callId +2025-02-19 +lasted +rows  proc"));
    for (const std::string& line : shown) EXPECT_LE(charactersOf(line), 80u) << line;
}

TEST_F(ReadingWidth, TellsOnceWhatIsGuessedOfManyLogs)
{
    std::filesystem::create_directory(folder / "logs");
    for (const char* name : {"diag_A_20250220_150000.txt", "diag_B_20250220_150000.txt",
                             "diag_C_20250220_150000.txt", "clock.txt"})
        write(folder / "logs" / name, "15:23:07:123,Conv,12,CallFlow,7,text\n");
    const std::string shown =
        onTerminal({"--site", (folder / "no-site").string(), "read", (folder / "logs").string()},
                   folder.string(), 300);
    const auto lines = linesOf(shown);
    ASSERT_LT(2u, lines.size());
    EXPECT_EQ("orvandiag: The lines of clock.txt are taken to be basic ones, without thread, port "
              "and call id; the same goes for 3 other logs",
              lines[0]);
    EXPECT_EQ("orvandiag: No day stands in clock.txt or its name: its last line is taken to be of "
              "the day when it was modified",
              lines[1]);
    EXPECT_THAT(lines[2], StartsWith("Moment"));
}

/// Ctrl-C while rows are read and shown.
struct ReadingInterrupted : MergedReading {
    void SetUp() override
    {
        MergedReading::SetUp();
        std::string lines;
        for (int row = 0; row < 50'000; ++row)
            lines += "15:23:07:123,Conv,12,CallFlow,7,a row of many\r\n";
        write(folder / log, lines);
    }

    Words reading(Words words) const
    {
        words.insert(words.begin(),
                     {"--site", (folder / "no-site").string(), "read", "--fields", "basic"});
        return words;
    }

    const std::string log = "diag_KoCSMgr_20250220_152307.txt";
};

TEST_F(ReadingInterrupted, EndsAtOnceInATable)
{
    OnTerminal program(reading({"./" + log}), folder.string());
    program.writtenWith("a row of many");
    program.type("\x03");
    const std::string written = program.end();
    EXPECT_EQ(endedByInterrupt, program.status());
    EXPECT_LT(written.size(), 1'000'000u) << "it does not go on to the last row";
}

TEST_F(ReadingInterrupted, EndsAtOnceWhileItCounts)
{
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
    OnTerminal program(reading({pipe, "--count"}), folder.string());
    const int input = open(pipe.c_str(), O_WRONLY); // once it is read
    ASSERT_LE(0, input);
    program.type("\x03");
    EXPECT_EQ("", program.end());
    EXPECT_EQ(endedByInterrupt, program.status());
    close(input);
}

TEST_F(ReadingInterrupted, IsTheUsualEndOfFollowing)
{
    OnTerminal program(reading({"./" + log, "--follow"}), folder.string());
    program.writtenWith("050000");
    program.type("\x03");
    EXPECT_THAT(program.end(), Not(HasSubstr("orvandiag:")));
    EXPECT_EQ(0, program.status());
}

TEST_F(ReadingInterrupted, LeavesThePagerToThePerson)
{
    setenv("ORVAN_PAGER", "(trap '' INT; head -n 2; read key < /dev/tty; echo left by $key)", 1);
    OnTerminal program(reading({"./" + log}), folder.string());
    unsetenv("ORVAN_PAGER");
    program.writtenWith("a row of many");
    program.type("\x03");
    program.type("q\n");
    EXPECT_THAT(program.end(), testing::EndsWith("left by q\n"));
    EXPECT_EQ(0, program.status());
}

TEST_F(ReadingInterrupted, HasWhatAPersonTypesInThePager)
{
    setenv("ORVAN_PAGER", "sed 's/^/P:/'", 1);
    OnTerminal program(reading({"-", "--format", "raw"}), folder.string());
    unsetenv("ORVAN_PAGER");
    program.type("15:23:07:123,Conv,12,CallFlow,7,typed\n\x04");
    EXPECT_THAT(program.end(), HasSubstr("P:15:23:07:123,Conv,12,CallFlow,7,typed\n"));
    EXPECT_EQ(0, program.status());
}

/// What becomes of a log while its rows are shown, which waits for the terminal to take them.
struct ReadingOfAChangingLog : ReadingInterrupted {
    /// Changes the log behind the first rows, and gives what was written until the end.
    template <typename Change>
    std::string shownAfter(const Change& change)
    {
        OnTerminal program(reading({"./" + log, "--format", "raw"}), folder.string());
        program.writtenWith("a row of many");
        change();
        std::string written = program.end();
        status = program.status();
        return written;
    }

    static auto rowsOf(const std::string& written)
    {
        return std::count(written.begin(), written.end(), '\n');
    }

    int status = -1;
};

TEST_F(ReadingOfAChangingLog, ShowsTheRowsThatItFoundThoughAnotherLogTakesItsName)
{
    const std::string written = shownAfter([&] {
        write(folder / "other", "15:23:08:000,Conv,12,CallFlow,7,another log\r\n");
        fs::rename(folder / "other", folder / log);
    });
    EXPECT_EQ(0, status) << written.substr(written.size() - 200);
    EXPECT_EQ(50'000, rowsOf(written));
    EXPECT_THAT(written, Not(HasSubstr("another log")));
}

TEST_F(ReadingOfAChangingLog, ShowsTheRowsThatItFoundThoughTheLogIsGone)
{
    const std::string written = shownAfter([&] { fs::remove(folder / log); });
    EXPECT_EQ(0, status) << written.substr(written.size() - 200);
    EXPECT_EQ(50'000, rowsOf(written));
}

TEST_F(ReadingOfAChangingLog, TellsOnceThatRowsAreCutOff)
{
    const std::string written = shownAfter([&] { fs::resize_file(folder / log, 1000); });
    EXPECT_EQ(1, status);
    EXPECT_THAT(written, testing::ContainsRegex("has line [0-9]+ no more\n"));
    EXPECT_THAT(written, testing::ContainsRegex("orvandiag: [0-9]+ more rows can't be read\n"));
    EXPECT_LT(rowsOf(written), 50'000);
}

/// The folder for temporary files has no room for what has to be unpacked.
struct ReadingWithoutRoom : MergedReading {
    void SetUp() override
    {
        MergedReading::SetUp();
        if (runProgram({"unshare", "-rm", "true"}, folder.string()).status != 0)
            GTEST_SKIP() << "nobody may mount a small file system here";
        fs::create_directory(folder / "small");
    }

    /// What a shell makes of a line while $TMPDIR is a disk of one megabyte.
    Outcome onSmallDisk(const std::string& line) const
    {
        const std::string small = (folder / "small").string();
        return runProgram({"unshare", "-rm", "bash", "-c",
                           "mount -t tmpfs -o size=1m none " + small +
                               " && export TMPDIR=" + small + "; O='" + built::orvandiag +
                               " --site " + site.string() + "'; " + line},
                          folder.string());
    }
};

TEST_F(ReadingWithoutRoom, SaysWhatOfACabinetIsNotUnpacked)
{
    ASSERT_EQ(0, run({"gather", "frame", "--from", "2025-02-20 15:00", "--hours", "1", "--to",
                      target.string()})
                     .status);
    const Outcome shown = onSmallDisk("$O read " + target.string() + "/*.cab --count");
    EXPECT_EQ(1, shown.status);
    EXPECT_EQ("0\n", shown.out);
    EXPECT_EQ(3, std::count(shown.err.begin(), shown.err.end(), '\n')) << shown.err;
    EXPECT_THAT(shown.err, HasSubstr("Application.csv is not read: the disk of the temporary files "
                                     "has no more than 256 MB left\n"));
    EXPECT_EQ(0, onSmallDisk("$O read " + target.string() + " --count").status)
        << "beside the cabinet is what it has";
}

TEST_F(ReadingWithoutRoom, SaysThatAPipeIsNotRead)
{
    const std::string path = drive("KelmaOrvan/Logs/" + currentLog()).string();
    const Outcome shown = onSmallDisk("cat " + path + " | $O read - --count");
    EXPECT_EQ(1, shown.status);
    EXPECT_EQ("orvandiag: standard input: the disk of the temporary files has no more than 256 MB "
              "left\n",
              shown.err);
    EXPECT_EQ(0, onSmallDisk("$O read - --count < " + path).status) << "a file needs no copy";
}

TEST_F(MergedReading, SaysThatTheFolderForTemporaryFilesIsNotThere)
{
    const std::string path = drive("KelmaOrvan/Logs/" + currentLog()).string();
    const Outcome shown = shell("cat " + path + " | TMPDIR=/no/such/folder $O read - --count");
    EXPECT_EQ(1, shown.status);
    EXPECT_THAT(shown.err, StartsWith("orvandiag: standard input: the folder for temporary files, "
                                      "/no/such/folder, can't be used: "));
    EXPECT_EQ(1, std::count(shown.err.begin(), shown.err.end(), '\n')) << shown.err;
}

} // namespace
