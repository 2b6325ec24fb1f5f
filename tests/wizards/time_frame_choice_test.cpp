#include "wizards/time_frame_choice.h"

#include "platform/file_system.h"
#include "support/test_tool.h"
#include "wizards/trace_object.h"

#include <gtest/gtest.h>

namespace {

const std::string proc = "[ppgGatherLogs02Step]determineSelectedLogsFromTimeFrame";
const std::string procColumn = proc.substr(0, 50); // as wide as the log's column
const Date start = dateOf(2005, 10, 8, 10, 0, 0);
const Date end = dateOf(2005, 10, 8, 12, 0, 0);
using Texts = std::vector<std::string>;

TimeFrameChoice choiceOf(Date moment, const std::string& hours)
{
    return {moment, moment, hours, true, true};
}

/// A tool with a log folder, and a job to fill for 10 to 12 o'clock.
struct SelectionTool : TestTool {
    SelectionTool()
    {
        context.g_strLogFolder = "C:\\Logs";
        files.withFolder("C:\\Logs");
    }

    SelectionTool& withLog(const std::string& name, Date created, Date modified)
    {
        const std::string path = "C:\\Logs\\" + name;
        files.with(path).created(path, created).modified(path, modified);
        return *this;
    }

    void determine() { determineSelectedLogsFromTimeFrame(context, choice, frame, job); }

    Texts orvanLogs() const { return namesOf(job.getOrvanLogs()); }
    Texts windowsLogs() const { return namesOf(job.getWindowsLogs()); }

    static Texts namesOf(const StringArray& list)
    {
        Texts names;
        for (int index = 1; index <= list.upperBound(); ++index) names.push_back(list.at(index));
        return names;
    }

    TimeFrameChoice choice = choiceOf(start, "2");
    TimeFrame frame;
    classTraceObject job;
};

} // namespace

TEST(ComputeTimeFrame, TakesTheDayOfOneAndTheTimeOfTheOther)
{
    TimeFrame frame;
    computeTimeFrame({dateOf(2005, 10, 8, 23, 0, 0), dateOf(1999, 1, 1, 10, 30, 0), "2"}, frame);
    EXPECT_EQ(dateOf(2005, 10, 8, 10, 30, 0), frame.start);
    EXPECT_EQ(dateOf(2005, 10, 8, 12, 30, 0), frame.end);
}

TEST(ComputeTimeFrame, StartsOnAWholeMinute)
{
    TimeFrame frame;
    computeTimeFrame(choiceOf(dateOf(2005, 10, 8, 15, 23, 59), "1"), frame);
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23, 0), frame.start);
    EXPECT_EQ(dateOf(2005, 10, 8, 16, 23, 0), frame.end);
}

TEST(ComputeTimeFrame, MayRunOverMonthsAndPastThePresent)
{
    TimeFrame frame;
    computeTimeFrame(choiceOf(dateOf(2005, 10, 8, 0, 0, 0), "999"), frame);
    EXPECT_EQ(dateOf(2005, 11, 18, 15, 0, 0), frame.end);
}

TEST(ComputeTimeFrame, ADurationThatIsNoNumberLeavesTheEndAsItWas)
{
    TimeFrame frame{Date{}, end};
    EXPECT_EQ(13, errorOf([&] { computeTimeFrame(choiceOf(start, ""), frame); }));
    EXPECT_EQ(start, frame.start);
    EXPECT_EQ(end, frame.end);
}

TEST(FileOverlapsTimeFrame, GoesByTheDatesOfTheFile)
{
    struct Case {
        const char* because;
        Date created;
        Date modified;
        bool overlaps;
    };
    const Case cases[] = {
        {"made and written inside", dateOf(2005, 10, 8, 10, 30), dateOf(2005, 10, 8, 11, 0), true},
        {"made before and written inside", dateOf(2005, 10, 7), dateOf(2005, 10, 8, 11, 0), true},
        {"made inside and written after", dateOf(2005, 10, 8, 11, 0), dateOf(2005, 10, 9), true},
        {"spanning the frame", dateOf(2005, 10, 7), dateOf(2005, 10, 9), true},
        {"ended before", dateOf(2005, 10, 7), dateOf(2005, 10, 8, 9, 59, 59), false},
        {"begun after", dateOf(2005, 10, 8, 12, 0, 1), dateOf(2005, 10, 9), false},
        {"ended at the start", dateOf(2005, 10, 7), start, true},
        {"begun at the end", end, dateOf(2005, 10, 9), true},
        {"less than a second off counts as the same", Date{end.days + 0.4 / 86400},
         dateOf(2005, 10, 9), true},
        {"a copy that is older than what it holds", dateOf(2005, 10, 9), dateOf(2005, 10, 7),
         false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        FileInfo file;
        file.created = c.created;
        file.modified = c.modified;
        EXPECT_EQ(c.overlaps, fileOverlapsTimeFrame(file, start, end));
    }
}

TEST(DetermineSelectedLogs, ListsDiagnosticLogsBeforeDataFilesWithoutFormattedCopies)
{
    SelectionTool tool;
    tool.withLog("data_a_1.txt", start, end)
        .withLog("diag_b_1.txt", start, end)
        .withLog("diag_a_1.txt", start, end)
        .withLog("diag_a_1_fmtd.txt", start, end)
        .withLog("diag_a_1_FMTD.txt2", start, end)
        .withLog("DATA_B_1_Fmtd.TXT", start, end)
        .withLog("diag_old_1.txt", dateOf(2005, 1, 1), dateOf(2005, 1, 2))
        .withLog("other_1.txt", start, end);
    tool.determine();
    EXPECT_EQ((Texts{"diag_a_1.txt", "diag_b_1.txt", "data_a_1.txt"}), tool.orvanLogs());
    EXPECT_EQ((Texts{"Application", "System"}), tool.windowsLogs());
    EXPECT_EQ(start, tool.frame.start);
    EXPECT_EQ(end, tool.frame.end);
    EXPECT_TRUE(tool.logged(
        "Gathering logs with data between: 10/8/2005 10:00:00 AM - 10/8/2005 12:00:00 PM"));
    EXPECT_TRUE(tool.logged("Entering " + proc));
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(DetermineSelectedLogs, RebuildsTheListsAndKeepsAnEmptyEntryWhereNothingQualifies)
{
    SelectionTool tool;
    tool.job.addOrvanLog("from before");
    tool.job.addWindowsLog("from before");
    tool.choice.applicationLog = false;
    tool.choice.systemLog = false;
    tool.determine();
    EXPECT_EQ((Texts{""}), tool.orvanLogs());
    EXPECT_EQ((Texts{""}), tool.windowsLogs());
}

TEST(DetermineSelectedLogs, TakesTheEventLogsThatWereChosen)
{
    SelectionTool tool;
    tool.choice.applicationLog = false;
    tool.determine();
    EXPECT_EQ((Texts{"System"}), tool.windowsLogs());
}

TEST(DetermineSelectedLogs, ALogThatIsGoneByThenCountsAsTheOneBeforeIt)
{
    SelectionTool tool;
    tool.withLog("diag_a_1.txt", start, end)
        .withLog("diag_b_1.txt", start, end)
        .withLog("data_a_1.txt", start, end);
    tool.files.failing("C:\\Logs\\diag_b_1.txt", 53).failing("C:\\Logs\\data_a_1.txt", 53);
    tool.determine();
    EXPECT_EQ((Texts{"diag_a_1.txt", "diag_a_1.txt", "diag_a_1.txt"}), tool.orvanLogs());
    EXPECT_EQ(2U, tool.failures(procColumn).size());
}

TEST(DetermineSelectedLogs, AFirstLogThatIsGoneByThenIsLeftOut)
{
    SelectionTool tool;
    tool.withLog("diag_a_1.txt", start, end).withLog("diag_b_1.txt", start, end);
    tool.files.failing("C:\\Logs\\diag_a_1.txt", 53);
    tool.determine();
    EXPECT_EQ((Texts{"diag_b_1.txt"}), tool.orvanLogs());
    EXPECT_EQ((Texts{"Err.Number = 53 Err.Description = File not found",
                     "Err.Number = 91 Err.Description = Object variable or With block variable "
                     "not set"}),
              tool.failures(procColumn));
}

TEST(DetermineSelectedLogs, AnEmptyDurationIsLoggedAndTheEndStays)
{
    SelectionTool tool;
    tool.choice.duration = "";
    tool.frame.end = end;
    tool.withLog("diag_a_1.txt", start, end).determine();
    EXPECT_EQ((Texts{"Err.Number = 13 Err.Description = Type mismatch"}),
              tool.failures(procColumn));
    EXPECT_EQ(end, tool.frame.end);
    EXPECT_EQ((Texts{"diag_a_1.txt"}), tool.orvanLogs());
}
