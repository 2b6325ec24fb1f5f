#include "drives/site_paths.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

class SitePathsTest : public testing::Test {
protected:
    SitePathsTest()
    {
        folder.write("drive_c/Program Files/Orvan/Read Me.txt");
        folder.write("drive_d/data.txt");
    }

    std::string onSite(const std::string& path) const
    {
        return paths.machinePath(path).substr(folder.path().size());
    }

    TemporaryFolder folder;
    SitePaths paths{folder.path() + "/"};
};

TEST_F(SitePathsTest, MapsDrivesToFoldersOfTheSite)
{
    struct Case {
        const char* because;
        std::string path;
        std::string expected;
    };
    const Case cases[] = {
        {"a file on C:", "C:\\Program Files\\Orvan\\Read Me.txt",
         "/drive_c/Program Files/Orvan/Read Me.txt"},
        {"both separators", "C:/Program Files\\Orvan", "/drive_c/Program Files/Orvan"},
        {"a small drive letter", "c:\\Program Files", "/drive_c/Program Files"},
        {"another drive", "D:\\data.txt", "/drive_d/data.txt"},
        {"case where the exact name is absent", "C:\\PROGRAM FILES\\orvan\\read me.TXT",
         "/drive_c/Program Files/Orvan/Read Me.txt"},
        {"a new name keeps its case", "c:\\program files\\New Folder\\A.txt",
         "/drive_c/Program Files/New Folder/A.txt"},
        {"separators in a row are one", "C:\\\\Program Files\\\\\\Orvan\\",
         "/drive_c/Program Files/Orvan"},
        {"a point is the folder itself", "C:\\.\\Program Files\\.", "/drive_c/Program Files"},
        {"two points go up", "C:\\Program Files\\..\\x", "/drive_c/x"},
        {"and stop at the root", "C:\\..\\..\\..\\etc\\passwd", "/drive_c/etc/passwd"},
        {"also with the other separator", "C:/../../drive_d/data.txt", "/drive_c/drive_d/data.txt"},
        {"a name of points is a name", "C:\\...", "/drive_c/..."},
        {"the root", "C:\\", "/drive_c"},
        {"a drive without separator is its current folder", "C:", "/drive_c"},
        {"the root of the current drive", "\\Program Files", "/drive_c/Program Files"},
        {"a relative path starts at the current folder", "Program Files\\Orvan",
         "/drive_c/Program Files/Orvan"},
        {"a drive that is not there", "E:\\x", "/drive_e/x"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, onSite(c.path));
    }
}

TEST_F(SitePathsTest, APathThatBeginsWithASlashIsTheMachinesOwn)
{
    EXPECT_EQ(70, errorOf([&] { paths.machinePath(folder / "drive_d/data.txt"); }))
        << "unless a person named it, as a site's own registry may name it too";
    paths.permit(folder.path());
    EXPECT_EQ(70, errorOf([&] { paths.machinePath("/"); }));
    EXPECT_EQ(70, errorOf([&] { paths.machinePath(folder.path() + "/../x"); }));
    EXPECT_EQ(70, errorOf([&] { paths.machinePath(folder.path() + "x"); }));
    EXPECT_EQ(folder / "drive_d/data.txt", paths.machinePath(folder / "drive_d\\DATA.txt"));
    EXPECT_EQ(folder / "no such/place", paths.machinePath(folder / "no such/place"));
}

TEST_F(SitePathsTest, AnExactNameComesBeforeOneThatDiffersInCase)
{
    folder.write("drive_c/a/NAME");
    folder.write("drive_c/a/name");
    folder.write("drive_c/a/Name");

    EXPECT_EQ("/drive_c/a/name", onSite("C:\\a\\name"));
    EXPECT_EQ("/drive_c/a/NAME", onSite("C:\\a\\nAmE")) << "of several the first in byte order";
}

TEST_F(SitePathsTest, LettersOfAnyScriptMatchWithoutRegardToCase)
{
    folder.write("drive_c/Größe/ÉTÉ.txt");

    EXPECT_EQ("/drive_c/Größe/ÉTÉ.txt", onSite("C:\\GRÖßE\\été.TXT"));
}

TEST_F(SitePathsTest, RefusesWhatIsNoPath)
{
    EXPECT_EQ(52, errorOf([&] { paths.machinePath(""); }));
    EXPECT_EQ(52, errorOf([&] { paths.machinePath(std::string("C:\\a\0b", 6)); }));
    EXPECT_EQ(76, errorOf([&] { paths.machinePath("\\\\server\\share\\x"); }));
}

TEST_F(SitePathsTest, ALinkWithinADriveIsFollowed)
{
    fs::create_symlink("Program Files/Orvan", folder / "drive_c/short");
    fs::create_symlink("../drive_c/Program Files", folder / "drive_c/round");
    fs::create_symlink("./Program Files/../Program Files", folder / "drive_c/whole");

    EXPECT_EQ("/drive_c/Program Files/Orvan/Read Me.txt", onSite("C:\\short\\read me.txt"));
    EXPECT_EQ("/drive_c/Program Files/Orvan", onSite("C:\\WHOLE\\orvan"));
    EXPECT_EQ(70, errorOf([&] { paths.machinePath("C:\\round"); })) << "out of the drive and in";
}

TEST_F(SitePathsTest, ALinkOutOfItsDriveIsRefused)
{
    const TemporaryFolder outside;
    outside.write("secret.txt");
    fs::create_symlink(outside.path(), folder / "drive_c/out");
    fs::create_symlink(outside / "secret.txt", folder / "drive_c/file");
    fs::create_symlink("../drive_d", folder / "drive_c/other");
    fs::create_symlink(folder / "drive_c/Program Files", folder / "drive_c/absolute");
    fs::create_symlink(outside / "not yet", folder / "drive_c/dangling");
    fs::create_symlink("loop", folder / "drive_c/loop");
    fs::create_symlink(folder / "drive_c2", folder / "drive_c/prefix");
    folder.makeFolder("drive_c2");

    for (const char* path :
         {"C:\\out", "C:\\out\\secret.txt", "C:\\OUT\\new.txt", "C:\\file", "C:\\other\\data.txt",
          "C:\\dangling", "C:\\loop", "C:\\prefix", "C:\\absolute"})
        EXPECT_EQ(70, errorOf([&] { paths.machinePath(path); })) << path;
    EXPECT_THAT(errorTextOf([&] { paths.machinePath("C:\\file"); }),
                testing::EndsWith("drive_c/file leads out of the site"));
}

TEST_F(SitePathsTest, ADriveItselfMayBeALinkWithinTheSite)
{
    const TemporaryFolder disk;
    disk.write("logs/a.txt");
    folder.write("disks/one/logs/a.txt");
    fs::create_directory_symlink("disks/one", folder / "drive_f");
    fs::create_directory_symlink(disk.path(), folder / "drive_g");

    EXPECT_THAT(onSite("F:\\LOGS\\a.txt"), testing::EndsWith("/logs/a.txt"));
    EXPECT_EQ(70, errorOf([&] { paths.machinePath("G:\\logs\\a.txt"); }));
    EXPECT_EQ(70, errorOf([&] { paths.place("G:\\"); }));
    EXPECT_EQ(68, errorOf([&] { paths.changeDrive("G:"); }));
}

TEST_F(SitePathsTest, AMachinePathFollowsLinksAsFarAsThePersonNamedIt)
{
    const TemporaryFolder outside;
    outside.write("a.txt");
    fs::create_symlink(outside.path(), folder / "link");
    fs::create_symlink("/etc", outside / "away");

    EXPECT_EQ(70, errorOf([&] { paths.machinePath(folder / "link/A.TXT"); }));
    paths.permit(folder / "link");
    EXPECT_EQ(folder / "link/a.txt", paths.machinePath(folder / "link/A.TXT"));
    EXPECT_EQ(70, errorOf([&] { paths.machinePath(folder / "link/away/passwd"); }));
}

TEST_F(SitePathsTest, ASiteThatIsMovedAwayIsThereNoMoreUntilItComesBack)
{
    const TemporaryFolder other;
    fs::rename(folder.path(), other / "away");
    EXPECT_EQ(76, errorOf([&] { paths.place("C:\\Program Files"); }));
    fs::rename(other / "away", folder.path());
    EXPECT_EQ("/drive_c/Program Files", onSite("C:\\Program Files"));
}

TEST_F(SitePathsTest, EachDriveHasItsCurrentFolder)
{
    paths.changeFolder("C:\\Program Files");
    EXPECT_EQ("/drive_c/Program Files/Orvan", onSite("Orvan"));
    EXPECT_EQ("/drive_c/Program Files/Orvan", onSite("c:orvan"));
    EXPECT_EQ(folder / "drive_c/Program Files", paths.currentFolder());

    paths.changeDrive("d:");
    EXPECT_EQ("/drive_d/data.txt", onSite("DATA.TXT"));
    EXPECT_EQ("/drive_c/Program Files/x", onSite("C:x"));

    paths.changeDrive("C:\\anything");
    paths.changeFolder("Orvan");
    EXPECT_EQ("/drive_c/Program Files/Orvan/Read Me.txt", onSite("read me.txt"));
    paths.changeFolder("..\\..");
    EXPECT_EQ("/drive_c/x", onSite("x"));
}

TEST_F(SitePathsTest, AFolderOfTheMachineCanBeCurrent)
{
    const auto result = folder.makeFolder("result");
    paths.permit(result);

    paths.changeDrive("");
    paths.changeFolder(result);

    EXPECT_EQ(result, paths.currentFolder());
    EXPECT_EQ(result + "/a.cab", paths.machinePath("a.cab"));
    paths.changeDrive("C:");
    EXPECT_EQ("/drive_c/a.cab", onSite("a.cab"));
}

TEST_F(SitePathsTest, AFailedChangeLeavesTheCurrentFolder)
{
    paths.changeFolder("C:\\Program Files");

    EXPECT_EQ(68, errorOf([&] { paths.changeDrive("Q:"); }));
    EXPECT_EQ(68, errorOf([&] { paths.changeDrive("?"); }));
    EXPECT_EQ(76, errorOf([&] { paths.changeFolder("C:\\none"); }));
    EXPECT_EQ(76, errorOf([&] { paths.changeFolder("Orvan\\Read Me.txt"); }));
    EXPECT_EQ(70, errorOf([&] { paths.changeFolder("/no/such/folder"); }));
    paths.permit("/no/such");
    EXPECT_EQ(76, errorOf([&] { paths.changeFolder("/no/such/folder"); }));
    EXPECT_EQ(folder / "drive_c/Program Files", paths.currentFolder());
}

TEST_F(SitePathsTest, KnowsRootsAndDriveNames)
{
    EXPECT_TRUE(paths.isRoot("C:\\"));
    EXPECT_TRUE(paths.isRoot("C:\\x\\.."));
    EXPECT_TRUE(paths.isRoot("/"));
    EXPECT_FALSE(paths.isRoot("C:\\x"));
    EXPECT_EQ("C:", SitePaths::driveName("C:\\x"));
    EXPECT_EQ("d:", SitePaths::driveName("d:"));
    EXPECT_EQ("", SitePaths::driveName("/tmp/C:"));
    EXPECT_EQ("", SitePaths::driveName("x"));
    EXPECT_EQ("", SitePaths::driveName(""));
}

TEST_F(SitePathsTest, TheWholeMachineMayBePermitted)
{
    const TemporaryFolder other;
    other.write("Data.txt");
    std::filesystem::create_symlink(other / "Data.txt", folder / "link");
    paths.permit("/");
    EXPECT_EQ(other / "Data.txt", paths.machinePath(other / "data.TXT"));
    EXPECT_TRUE(paths.place(folder / "link").root.isFile(paths.place(folder / "link").path));
}

} // namespace
