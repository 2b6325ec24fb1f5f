#include "system/machine_path.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(MachinePath, NamesKeepTheirLettersBothWays)
{
    const TemporaryFolder box;
    box.write("Grüße – あ.txt", "x");
    EXPECT_TRUE(fs::is_regular_file(filePathOf(box.path() + "/Grüße – あ.txt")));
    int files = 0;
    for (const auto& entry : fs::directory_iterator(filePathOf(box.path()))) {
        EXPECT_EQ("Grüße – あ.txt", machineTextOf(entry.path().filename()));
        ++files;
    }
    EXPECT_EQ(1, files);
}

TEST(MachinePath, AWholePathBeginsWithASlashAndStaysWhatItIs)
{
    const std::string whole = wholePathOf("some/name");
    EXPECT_EQ('/', whole.front());
    EXPECT_TRUE(whole.ends_with("/some/name")) << whole;
    EXPECT_EQ(whole, wholePathOf(whole));
    EXPECT_EQ(whole, machineTextOf(filePathOf(whole)));
    EXPECT_TRUE(filePathOf(whole).is_absolute());
}

TEST(MachinePath, AWholePathIsShownAsPeopleOfTheMachineWriteIt)
{
    const bool drives = machineHasDrives();
    EXPECT_EQ(drives ? "C:\\some\\name" : "/C:/some/name", shownPathOf("/C:/some/name"));
    EXPECT_EQ(drives ? "C:\\" : "/C:/", shownPathOf("/C:/"));
    EXPECT_EQ("/some/name", shownPathOf("/some/name"));
    EXPECT_EQ("and/or", shownPathOf("and/or"));
    EXPECT_EQ("C:\\x", shownPathOf("C:\\x"));
}

TEST(MachinePath, APathFromTheCurrentFolderStaysOne)
{
    EXPECT_EQ("some/name", machineTextOf(filePathOf("some/name")));
    EXPECT_EQ("", machineTextOf(filePathOf("")));
}

} // namespace
