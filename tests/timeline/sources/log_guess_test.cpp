#include "timeline/sources/log_guess.h"

#include "support/temporary_folder.h"
#include "system/root_folder.h"

#include <gmock/gmock.h>

namespace timeline {
namespace {

constexpr const char* guessedBasicLine = "15:23:07:123,Store,17,CallFlow,3,text\r\n";
constexpr const char* extendedLine = "15:23:07:123,Store,17,0x1A,4,C-1,CallFlow,3,text\r\n";
constexpr const char* formattedLine = "15:23:07:123 (Store,17,CallFlow,3) text\r\n";
constexpr const char* dataLine = "2005-10-08 15:23:07,Store,17,text, and more\r\n";

FirstLines look(const std::string& lines, const std::string& name = "some.txt")
{
    return lookAtLines(lines, readLogName(name));
}

TEST(ReadLogName, TakesProcessAndMinuteFromANameOfTheServer)
{
    const LogName name = readLogName("diag_KoCSMgr_20051008_152307.txt");
    EXPECT_TRUE(name.isLog);
    EXPECT_FALSE(name.isDataFile);
    EXPECT_FALSE(name.isFormattedCopy);
    EXPECT_EQ("KoCSMgr", name.process);
    EXPECT_EQ(dayOf(2005, 10, 8) + (15 * 60 + 23) * 60'000, name.opened);
}

TEST(ReadLogName, KnowsDataFilesAndFormattedCopies)
{
    const LogName copy = readLogName("DIAG_A_20051008_152307_FMTD.TXT");
    EXPECT_TRUE(copy.isFormattedCopy);
    EXPECT_TRUE(copy.opened.has_value());
    EXPECT_EQ("A", copy.process);
    const LogName dataFile = readLogName("data_B_20051008_152307.txt");
    EXPECT_TRUE(dataFile.isDataFile);
    EXPECT_EQ("B", dataFile.process);
}

TEST(ReadLogName, FindsTheMinuteInTheNameOfACopy)
{
    const Moment minute = dayOf(2005, 10, 8) + (15 * 60 + 23) * 60'000;
    for (const char* copy : {"diag_A_20051008_152307 (1).txt", "server_diag_A_20051008_152307.old",
                             "diag_A_20041008_152307_20051008_152307.txt"})
        EXPECT_EQ(minute, readLogName(copy).opened) << copy;
    EXPECT_EQ(std::nullopt, readLogName("diag_A_20051008_1523071.txt").opened);
}

TEST(ReadLogName, TakesNothingFromOtherNames)
{
    for (const char* other : {"", "x", "diag", "readme.txt", "_20051308_152307.txt",
                              "x_20050231_152307.txt", "x_20051008_256007.txt"}) {
        const LogName name = readLogName(other);
        EXPECT_EQ(std::nullopt, name.opened) << other;
        EXPECT_EQ("", name.process) << other;
        EXPECT_FALSE(name.isLog) << other;
    }
    EXPECT_EQ("", readLogName("diag_").process);
}

TEST(LookAtLines, KnowsEachForm)
{
    EXPECT_EQ(LineForm::basic, look(guessedBasicLine).form);
    EXPECT_EQ(LineForm::extended, look(extendedLine).form);
    EXPECT_EQ(LineForm::formatted, look(formattedLine).form);
    EXPECT_EQ(LineForm::data, look(dataLine).form);
    EXPECT_EQ(LineForm::data, look(guessedBasicLine, "data_A_20051008_152307.txt").form);
    EXPECT_EQ(std::nullopt, look("").form);
    EXPECT_EQ(std::nullopt, look("nothing\nof the kind\n").form);
    EXPECT_EQ(std::nullopt, look("name,town,3,more\n").form);
    EXPECT_EQ(std::nullopt, look(std::string(5000, '\0')).form);
}

TEST(LookAtLines, GoesByTheFormOfMostLines)
{
    const std::string manyBasic =
        std::string(guessedBasicLine) + guessedBasicLine + guessedBasicLine;
    EXPECT_EQ(LineForm::basic, look("a stack\n of lines\n" + manyBasic + formattedLine).form);
    EXPECT_EQ(LineForm::extended,
              look(std::string(extendedLine) + extendedLine + formattedLine).form);
}

TEST(LookAtLines, TellsWhetherStampsHaveADay)
{
    EXPECT_FALSE(look(guessedBasicLine).dated);
    EXPECT_TRUE(look("2005-10-08 15:23:07,Store,17,CallFlow,3,text\n").dated);
    EXPECT_TRUE(look(dataLine).dated);
}

TEST(LookAtLines, TellsWhetherTheCodePageMatters)
{
    EXPECT_FALSE(look(guessedBasicLine).beyondAscii);
    EXPECT_TRUE(look(std::string(guessedBasicLine) + "\xE4").beyondAscii);
}

TEST(ReadFirstStamps, CountsHowOftenTheClockGoesBack)
{
    const TemporaryFolder folder;
    const auto midnights = [&](const std::string& bytes) {
        const FirstStamps stamps = readFirstStamps(
            openMachineFile(folder.write("a", bytes), forReading, 53), LineForm::basic);
        EXPECT_EQ(std::nullopt, stamps.dated);
        return stamps.midnights;
    };
    EXPECT_EQ(0, midnights(""));
    EXPECT_EQ(0, midnights(guessedBasicLine));
    EXPECT_EQ(2, midnights("23:59:59:000,S,1,C,1,a\n00:00:01:000,S,1,C,1,b\nno line\n"
                           "00:00:00:000,S,1,C,1,c\n"));
}

TEST(ReadFirstStamps, StopsAtTheFirstDate)
{
    const TemporaryFolder folder;
    const auto path = folder.write("a", "12:00:00:000,S,1,C,1,a\n11:00:00:000,S,1,C,1,b\n"
                                        "2025-02-20 10:00:00,S,1,C,1,c\n"
                                        "09:00:00:000,S,1,C,1,d\n");
    const FirstStamps stamps =
        readFirstStamps(openMachineFile(path, forReading, 53), LineForm::basic);
    EXPECT_EQ(dayOf(2025, 2, 20), stamps.dated);
    EXPECT_EQ(2, stamps.midnights);
}

} // namespace
} // namespace timeline
