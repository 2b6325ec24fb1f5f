#include "cabmaker/site_paths.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

class SitePathsTest : public testing::Test {
protected:
    SitePathsTest()
    {
        scratch_.write("site/drive_c/Temp/Logs/Application.csv", "");
        scratch_.write("site/drive_c/Temp/Ärger.csv", "");
        scratch_.write("site/drive_c/Temp/twice/b.csv", "");
        scratch_.write("site/drive_c/Temp/twice/B.csv", "");
        scratch_.write("site/secret.txt", "");
        scratch_.write("Machine/File.txt", "");
    }

    std::string at(const std::string& name) const
    {
        return std::filesystem::canonical(scratch_.path()).string() + "/" + name;
    }

    SitePaths paths(const std::string& working = "site/drive_c/Temp/Logs") const
    {
        return {at("site"), at(working)};
    }

    ScratchFolder scratch_;
};

std::string messageOf(const SitePaths& paths, const std::string& path)
{
    try {
        return paths.machinePath(path);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(runTimeErrors::pathNotFound, error.number());
        return error.description();
    }
}

} // namespace

TEST_F(SitePathsTest, FindsThePlaceOnTheMachine)
{
    struct Case {
        const char* because;
        const char* path;
        const char* expected;
    };
    const Case cases[] = {
        {"a drive is a folder", "C:\\Temp\\Logs\\Application.csv",
         "site/drive_c/Temp/Logs/Application.csv"},
        {"slashes separate too", "c:/Temp\\Logs/Application.csv",
         "site/drive_c/Temp/Logs/Application.csv"},
        {"separators in a row are one", "C:\\\\Temp\\Logs", "site/drive_c/Temp/Logs"},
        {"names match without case", "C:\\TEMP\\logs\\APPLICATION.CSV",
         "site/drive_c/Temp/Logs/Application.csv"},
        {"accented letters too", "C:\\temp\\äRGER.csv", "site/drive_c/Temp/Ärger.csv"},
        {"the exact name comes first", "C:\\Temp\\twice\\b.csv", "site/drive_c/Temp/twice/b.csv"},
        {"what is absent keeps its case", "C:\\temp\\New\\X.cab", "site/drive_c/Temp/New/X.cab"},
        {"the drive itself", "C:\\", "site/drive_c"},
        {"the drive's bare name", "C:", "site/drive_c"},
        {"up and down", "C:\\Temp\\Logs\\..\\.\\twice", "site/drive_c/Temp/twice"},
        {"up needs no folder", "C:\\Temp\\none\\..\\Logs", "site/drive_c/Temp/Logs"},
        {"a drive can't be left", "C:\\..\\..\\secret.txt", "site/drive_c/secret.txt"},
        {"a relative path", "application.CSV", "site/drive_c/Temp/Logs/Application.csv"},
        {"up from the working folder", "disk1\\..\\x.cab", "site/drive_c/Temp/Logs/x.cab"},
        {"a relative path can't leave the drive either", "..\\..\\..\\..\\secret.txt",
         "site/drive_c/secret.txt"},
        {"from the top of the working folder's drive", "\\Temp\\logs", "site/drive_c/Temp/Logs"},
        {"the working folder", "", "site/drive_c/Temp/Logs"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(at(c.expected), messageOf(paths(), c.path));
    }
}

TEST_F(SitePathsTest, KnowsPathsOfTheMachineItself)
{
    EXPECT_EQ(at("Machine/File.txt"), messageOf(paths(), at("Machine/File.txt")));
    EXPECT_EQ(at("Machine/File.txt"), messageOf(paths(), at("Machine") + "\\file.TXT"));
    EXPECT_EQ("/", messageOf(paths(), "/../.."));
    EXPECT_EQ(at("Machine/File.txt"), messageOf(paths("Machine"), "FILE.txt"));
    EXPECT_EQ(at("site/secret.txt"), messageOf(paths("Machine"), "..\\site\\secret.txt"));
}

TEST_F(SitePathsTest, TakesTheFirstOfSeveralNamesThatDifferInCase)
{
    scratch_.write("site/drive_c/two/Abc", "");
    scratch_.write("site/drive_c/two/aBc", "");
    EXPECT_EQ(at("site/drive_c/two/Abc"), messageOf(paths(), "C:\\two\\abc"));
}

TEST_F(SitePathsTest, RefusesWhatHasNoPlaceHere)
{
    EXPECT_EQ("D:\\x: the site has no such drive", messageOf(paths(), "D:\\x"));
    EXPECT_EQ("C:x: a path on a drive begins at its top, as in C:\\", messageOf(paths(), "C:x"));
    EXPECT_EQ("\\\\server\\x: there are no network folders here",
              messageOf(paths(), "\\\\server\\x"));
    const SitePaths bare("", at("Machine"));
    EXPECT_EQ("C:\\x: there are no drives here (ORVAN_SITE_DRIVES names the folder of the drives)",
              messageOf(bare, "C:\\x"));
    EXPECT_EQ(at("Machine/File.txt"), messageOf(bare, "file.txt"));
}

TEST_F(SitePathsTest, TakesTheFolderOfTheDrivesRelativeToTheWorkingFolder)
{
    const SitePaths relative("../site", at("Machine"));
    EXPECT_EQ(at("site/drive_c/Temp"), messageOf(relative, "C:\\Temp"));
}

} // namespace cabmaker
