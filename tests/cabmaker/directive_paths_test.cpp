#include "cabmaker/directive_paths.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"
#include "system/machine_path.h"

namespace cabmaker {

namespace {

class DirectivePathsTest : public testing::Test {
protected:
    DirectivePathsTest()
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

    DirectivePaths paths(const std::string& working = "site/drive_c/Temp/Logs") const
    {
        return {at("site"), at(working)};
    }

    ScratchFolder scratch_;
};

std::string messageOf(const DirectivePaths& paths, const std::string& path)
{
    try {
        return paths.machinePath(path);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(runTimeErrors::pathNotFound, error.number());
        return error.description();
    }
}

int numberOf(const DirectivePaths& paths, const std::string& path)
{
    try {
        paths.machinePath(path);
        return 0;
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

} // namespace

TEST_F(DirectivePathsTest, FindsThePlaceOnTheMachine)
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
        {"a drive's bare name is its current folder", "C:", "site/drive_c/Temp/Logs"},
        {"from there on without a separator", "C:application.csv",
         "site/drive_c/Temp/Logs/Application.csv"},
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

TEST_F(DirectivePathsTest, KnowsPathsOfTheMachineItself)
{
    EXPECT_EQ(at("Machine/File.txt"), messageOf(paths(), at("Machine/File.txt")));
    EXPECT_EQ(at("Machine/File.txt"), messageOf(paths(), at("Machine") + "\\file.TXT"));
    EXPECT_EQ("/", messageOf(paths(), "/../.."));
    EXPECT_EQ(at("Machine/File.txt"), messageOf(paths("Machine"), "FILE.txt"));
    EXPECT_EQ(at("site/secret.txt"), messageOf(paths("Machine"), "..\\site\\secret.txt"));
}

TEST_F(DirectivePathsTest, TakesTheFirstOfSeveralNamesThatDifferInCase)
{
    scratch_.write("site/drive_c/two/Abc", "");
    scratch_.write("site/drive_c/two/aBc", "");
    EXPECT_EQ(at("site/drive_c/two/Abc"), messageOf(paths(), "C:\\two\\abc"));
}

TEST_F(DirectivePathsTest, RefusesWhatHasNoPlaceHere)
{
    EXPECT_EQ("D:\\x: the site has no such drive", messageOf(paths(), "D:\\x"));
    EXPECT_EQ("\\\\server\\x: there are no network folders here",
              messageOf(paths(), "\\\\server\\x"));
}

TEST_F(DirectivePathsTest, FindsNoDriveOnAMachineWithoutAny)
{
    if (machineHasDrives()) GTEST_SKIP() << "this machine has drives of its own";
    const DirectivePaths bare("", at("Machine"));
    EXPECT_EQ("C:\\x: there are no drives here (ORVAN_SITE_DRIVES names the folder of the drives)",
              messageOf(bare, "C:\\x"));
    EXPECT_EQ(at("Machine/File.txt"), messageOf(bare, "file.txt"));
}

TEST_F(DirectivePathsTest, TakesPathsOfAServerAsTheyAreOnTheServerItself)
{
    if (!machineHasDrives()) GTEST_SKIP() << "this machine has no drives of its own";
    const DirectivePaths own("", at("Machine"));
    EXPECT_EQ("/C:/x/y.txt", messageOf(own, "C:\\x\\y.txt"));
    EXPECT_EQ("//server/share/y.txt", messageOf(own, "\\\\server\\share\\y.txt"));
    EXPECT_EQ(at("Machine/file.txt"), messageOf(own, "file.txt"));
}

TEST_F(DirectivePathsTest, TakesTheFolderOfTheDrivesRelativeToTheWorkingFolder)
{
    const DirectivePaths relative("../site", at("Machine"));
    EXPECT_EQ(at("site/drive_c/Temp"), messageOf(relative, "C:\\Temp"));
}

TEST_F(DirectivePathsTest, NothingLeadsOutOfADrive)
{
    namespace fs = std::filesystem;
    scratch_.write("outside/secret.txt", "");
    fs::create_symlink("../../outside", at("site/drive_c/away"));
    fs::create_symlink(at("outside/secret.txt"), at("site/drive_c/Temp/Logs/link.csv"));
    fs::create_symlink("Logs/Application.csv", at("site/drive_c/Temp/inside.csv"));
    for (const char* path : {"C:\\away\\secret.txt", "link.csv"})
        EXPECT_EQ(runTimeErrors::permissionDenied, numberOf(paths(), path)) << path;
    EXPECT_EQ(0, numberOf(paths(), "C:\\Temp\\inside.csv"));
}

TEST_F(DirectivePathsTest, NothingLeadsOutOfTheWorkingFolderOfASiteElsewhere)
{
    std::filesystem::create_symlink(at("site/secret.txt"), at("Machine/link.csv"));
    EXPECT_EQ(runTimeErrors::permissionDenied, numberOf(paths("Machine"), "link.csv"));
    EXPECT_EQ(0, numberOf(DirectivePaths("", at("Machine")), "link.csv"))
        << "who works for no site names what they please";
}

TEST_F(DirectivePathsTest, NamesOfOtherScriptsMatchWithoutCaseToo)
{
    scratch_.write("site/drive_c/Ωmega.csv", "");
    EXPECT_EQ(at("site/drive_c/Ωmega.csv"), messageOf(paths(), "C:\\ωMEGA.CSV"));
}

TEST_F(DirectivePathsTest, NeedsTheFolderOfTheDrivesForAPathOfADriveAlone)
{
    for (const char* name : {"none", "Machine/File.txt"}) {
        const DirectivePaths paths(at(name), at("Machine"));
        EXPECT_EQ("C:\\x: " + at(name) +
                      " is no folder (ORVAN_SITE_DRIVES names the folder of the drives)",
                  messageOf(paths, "C:\\x"));
        EXPECT_EQ(at("Machine/File.txt"), messageOf(paths, "file.txt"));
        EXPECT_EQ(at("site/secret.txt"), messageOf(paths, at("site/secret.txt")));
    }
    std::filesystem::create_symlink(at("site/secret.txt"), at("Machine/link.csv"));
    EXPECT_EQ(runTimeErrors::permissionDenied,
              numberOf(DirectivePaths(at("none"), at("Machine")), "link.csv"))
        << "the work is done for a site all the same";
}

} // namespace cabmaker
