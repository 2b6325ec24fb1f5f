#include "wizards/trace_object.h"

#include "console/sheet.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

namespace {

/// The texts of a list from index 0 to its upper bound.
std::vector<std::string> textsOf(const StringArray& list)
{
    std::vector<std::string> texts;
    for (int index = 0; index <= list.upperBound(); ++index) texts.push_back(list.at(index));
    return texts;
}

} // namespace

TEST(TraceObject, StartsWithEverythingEmpty)
{
    const classTraceObject job;
    EXPECT_EQ(Date{}, job.m_dateStart);
    EXPECT_EQ(Date{}, job.m_dateEnd);
    EXPECT_FALSE(job.m_bTimeFrameLogs);
    EXPECT_FALSE(job.m_bStandardLogs);
    EXPECT_EQ("", job.m_LogDestinationDirectory);
    EXPECT_EQ(nullptr, job.dictStatus);
}

TEST(TraceObject, AListReadBeforeItsFirstClearHasNoBounds)
{
    const classTraceObject job;
    EXPECT_EQ(9, errorOf([&] { job.getOrvanLogs().upperBound(); }));
    EXPECT_EQ(9, errorOf([&] { job.getWindowsLogs().upperBound(); }));
    EXPECT_EQ(9, errorOf([&] { job.getOrvanLogs().at(0); }));
}

TEST(TraceObject, AClearedListHasAnUpperBoundOf1AndOneEmptyEntryToWalk)
{
    classTraceObject job;
    job.clearOrvanLogs();
    job.clearWindowsLogs();
    EXPECT_EQ((std::vector<std::string>{"", ""}), textsOf(job.getOrvanLogs()));
    EXPECT_EQ((std::vector<std::string>{"", ""}), textsOf(job.getWindowsLogs()));
    EXPECT_EQ(9, errorOf([&] { job.getOrvanLogs().at(2); }));
    EXPECT_EQ(9, errorOf([&] { job.getOrvanLogs().at(-1); }));
}

TEST(TraceObject, TheFirstAddedNameStandsAtIndex1)
{
    classTraceObject job;
    job.clearOrvanLogs();
    job.addOrvanLog("a.txt");
    EXPECT_EQ((std::vector<std::string>{"", "a.txt"}), textsOf(job.getOrvanLogs()));
    job.addOrvanLog("b.txt");
    EXPECT_EQ((std::vector<std::string>{"", "a.txt", "b.txt"}), textsOf(job.getOrvanLogs()));
}

TEST(TraceObject, AnAdditionBeforeTheFirstClearGivesTheListBounds)
{
    classTraceObject job;
    job.addWindowsLog("System");
    EXPECT_EQ((std::vector<std::string>{"", "System"}), textsOf(job.getWindowsLogs()));
}

TEST(TraceObject, TheSameNameTwiceIsThereTwice)
{
    classTraceObject job;
    job.clearWindowsLogs();
    job.addWindowsLog("System");
    job.addWindowsLog("System");
    EXPECT_EQ((std::vector<std::string>{"", "System", "System"}), textsOf(job.getWindowsLogs()));
}

TEST(TraceObject, TheTwoListsKnowNothingOfEachOther)
{
    classTraceObject job;
    job.clearOrvanLogs();
    job.clearWindowsLogs();
    job.addOrvanLog("a.txt");
    job.addWindowsLog("System");
    job.clearOrvanLogs();
    EXPECT_EQ((std::vector<std::string>{"", ""}), textsOf(job.getOrvanLogs()));
    EXPECT_EQ((std::vector<std::string>{"", "System"}), textsOf(job.getWindowsLogs()));
}

TEST(TraceObject, AClearStartsTheCountAnew)
{
    classTraceObject job;
    job.clearOrvanLogs();
    job.addOrvanLog("a.txt");
    job.addOrvanLog("b.txt");
    job.clearOrvanLogs();
    job.addOrvanLog("c.txt");
    EXPECT_EQ((std::vector<std::string>{"", "c.txt"}), textsOf(job.getOrvanLogs()));
}

TEST(TraceObject, GivesACopyOfAList)
{
    classTraceObject job;
    job.clearOrvanLogs();
    const StringArray before = job.getOrvanLogs();
    job.addOrvanLog("a.txt");
    EXPECT_EQ("", before.at(1));
}

TEST(TraceObject, TheNameAfterNumber32767OverflowsAndIsNotAdded)
{
    classTraceObject job;
    job.clearOrvanLogs();
    for (int number = 1; number <= 32'767; ++number) job.addOrvanLog("a.txt");
    EXPECT_EQ(6, errorOf([&] { job.addOrvanLog("one too many"); }));
    EXPECT_EQ(32'767, job.getOrvanLogs().upperBound());
    EXPECT_EQ("a.txt", job.getOrvanLogs().at(32'767));
}

TEST(TraceObject, HandsBackTheSheetThatAPageStored)
{
    struct Sheet final : PageSheet {
        int last = -1;
        void SetWizardButtons(bool, int nextOrFinish) override { last = nextOrFinish; }
    } sheet;
    classTraceObject job;
    EXPECT_EQ(424, errorOf([&] { job.m_PropertySheet(); }));
    job.m_PropertySheet(sheet);
    job.m_PropertySheet().SetWizardButtons(true, wizardButton::nextEnabled);
    EXPECT_EQ(0, sheet.last);
}

TEST(TraceObject, SharesTheStatusDictionaryWithThePage)
{
    const auto status = std::make_shared<Dictionary<bool>>();
    classTraceObject job;
    job.dictStatus = status;
    status->item("Group - Trace") = true;
    EXPECT_EQ(1U, job.dictStatus->count());
}
