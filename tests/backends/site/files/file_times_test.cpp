#include "backends/site/files/file_times.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

TEST(StampOfName, ReadsTheServersStampBeforeTheEnding)
{
    const auto moment = dateOf(2005, 10, 8, 15, 23, 7);
    struct Case {
        const char* because;
        const char* name;
        std::optional<Date> expected;
    };
    const Case cases[] = {
        {"a log of a process", "diag_RoCsMgr_20051008_152307.txt", moment},
        {"a name without an ending", "diag_RoCsMgr_20051008_152307", moment},
        {"nothing but the stamp", "_20051008_152307.txt", moment},
        {"the stamp must end the name", "diag_RoCsMgr_20051008_152307_fmtd.txt", std::nullopt},
        {"of two endings the last one counts", "a_20051008_152307.txt.gz", std::nullopt},
        {"a blank before the date", "diag 20051008_152307.txt", std::nullopt},
        {"a digit too many", "diag_20051008_1523070.txt", std::nullopt},
        {"a month of 13 is no date", "diag_20051308_152307.txt", std::nullopt},
        {"nor is 30 February", "diag_20050230_152307.txt", std::nullopt},
        {"nor hour 24", "diag_20051008_242307.txt", std::nullopt},
        {"nor year 0", "diag_00001008_152307.txt", std::nullopt},
        {"29 February of a leap year is one", "diag_20040229_000000.txt", dateOf(2004, 2, 29)},
        {"a plain name", "notes.txt", std::nullopt},
        {"no name", "", std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, stampOfName(c.name));
    }
}

TEST(CreationTime, IsTheNamesStampWhateverTheFileSystemSays)
{
    const TemporaryFolder folder;
    const std::string name = "diag_A_20051008_152307.txt";

    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23, 7),
              creationTime(name, RootFolder(folder.path()), (folder.write(name), name),
                           PosixTimeZone{}, Date{}));
}

TEST(CreationTime, IsTheBirthTimeOtherwise)
{
    const TemporaryFolder folder;
    const auto before = localDate(PosixTimeZone{}, std::time(nullptr) - 1);
    folder.write("notes.txt");

    const auto created =
        creationTime("notes.txt", RootFolder(folder.path()), "notes.txt", PosixTimeZone{}, before);

    EXPECT_GE(created, before);
    EXPECT_LE(created, localDate(PosixTimeZone{}, std::time(nullptr) + 1));
}

TEST(CreationTime, IsTheModifiedTimeWhereThereIsNoBirthTime)
{
    const auto modified = dateOf(2001, 2, 3);

    EXPECT_EQ(modified, creationTime("no such file", RootFolder("/"), "no such file",
                                     PosixTimeZone{}, modified));
}

} // namespace
