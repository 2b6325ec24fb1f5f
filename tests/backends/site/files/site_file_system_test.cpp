#include "backends/site/files/site_file_system.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <fcntl.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class SiteFileSystemTest : public testing::Test {
protected:
    SiteFileSystemTest()
    {
        folder.makeFolder("drive_c");
        paths.permit(folder.path());
    }

    std::string put(const std::string& name, const std::string& bytes = "") const
    {
        return folder.write("drive_c/" + name, bytes);
    }

    /// Gives a file of C: a modified time, seconds since 1970.
    void modify(const std::string& name, std::int64_t moment) const
    {
        const timespec times[] = {{moment, 0}, {moment, 500'000'000}};
        ::utimensat(AT_FDCWD, (folder / "drive_c/" + name).c_str(), times, 0);
    }

    std::vector<std::string> namesIn(const std::string& path) const
    {
        std::vector<std::string> names;
        for (const auto& info : files.entries(path)) names.push_back(info.name);
        return names;
    }

    TemporaryFolder folder;
    SitePaths paths{folder.path()};
    SiteFileSystem files{paths, parsePosixTimeZone("PST8PDT,M3.2.0,M11.1.0")};
};

TEST_F(SiteFileSystemTest, TellsFilesFromFolders)
{
    put("logs/a.txt");

    EXPECT_TRUE(files.fileExists("C:\\LOGS\\A.TXT"));
    EXPECT_FALSE(files.fileExists("C:\\logs"));
    EXPECT_TRUE(files.folderExists("c:/logs/"));
    EXPECT_TRUE(files.folderExists("C:\\"));
    EXPECT_FALSE(files.folderExists("C:\\logs\\a.txt"));
    EXPECT_FALSE(files.folderExists("D:\\"));
    for (const auto& path : {std::string(), std::string("C:\\\0", 4), std::string("\\\\a\\b"),
                             "C:\\" + std::string(5000, 'x')}) {
        EXPECT_FALSE(files.fileExists(path));
        EXPECT_FALSE(files.folderExists(path));
    }
}

TEST_F(SiteFileSystemTest, TellsTheFactsOfAFileInTheSitesTime)
{
    put("logs/Diag_A_20051008_152307.txt", "12345");
    modify("logs/Diag_A_20051008_152307.txt", 1128869999); // 9 October 2005, 14:59:59 UTC

    const auto info = files.file("C:\\logs\\diag_a_20051008_152307.TXT");

    EXPECT_EQ("Diag_A_20051008_152307.txt", info.name);
    EXPECT_EQ(5, info.size);
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23, 7), info.created);
    EXPECT_EQ(dateOf(2005, 10, 9, 7, 59, 59), info.modified);
    EXPECT_FALSE(info.folder);
    EXPECT_FALSE(info.readOnly);
}

TEST_F(SiteFileSystemTest, AModifiedTimeOutOfAnyCalendarIsNoTrouble)
{
    put("a.txt");
    modify("a.txt", -20'000'000'000);
    EXPECT_LT(files.file("C:\\a.txt").modified, dateOf(1970, 1, 1));
    modify("a.txt", 400'000'000'000);
    EXPECT_GT(files.file("C:\\a.txt").modified, dateOf(1970, 1, 1));
}

TEST_F(SiteFileSystemTest, TellsAReadOnlyFile)
{
    fs::permissions(put("a.txt"), fs::perms::owner_read | fs::perms::others_read);

    EXPECT_TRUE(files.file("C:\\a.txt").readOnly);
}

TEST_F(SiteFileSystemTest, Raises53ForAFileThatIsNone)
{
    put("logs/a.txt");

    for (const char* path :
         {"C:\\none", "C:\\logs", "C:\\logs\\a.txt\\b", "C:\\none\\a", "D:\\a"}) {
        EXPECT_EQ(53, errorOf([&] { files.file(path); })) << path;
        EXPECT_EQ(53, errorOf([&] { files.deleteFile(path); })) << path;
        EXPECT_EQ(53, errorOf([&] { files.clearAttributes(path); })) << path;
        EXPECT_EQ(53, errorOf([&] { files.copyFile(path, "C:\\new"); })) << path;
    }
    EXPECT_EQ(53, errorOf([&] { files.openForReading("C:\\logs\\none"); }));
    EXPECT_EQ(76, errorOf([&] { files.openForReading("C:\\none\\a.txt"); }));
    EXPECT_FALSE(files.fileExists("C:\\new"));
}

TEST_F(SiteFileSystemTest, ListsAFolderSortedByName)
{
    put("logs/b.txt", "12");
    put("logs/A.txt", "1");
    put("logs/c_1.txt");
    put("logs/C1.txt");
    put("logs/Sub/deep.txt");

    EXPECT_THAT(namesIn("C:\\Logs"), ElementsAre("A.txt", "b.txt", "C1.txt", "c_1.txt", "Sub"));
    const auto entries = files.entries("C:\\Logs");
    EXPECT_EQ(2, entries[1].size);
    EXPECT_TRUE(entries[4].folder);
    EXPECT_EQ(0, entries[4].size);
}

TEST_F(SiteFileSystemTest, ListsNothingThatNoPathReaches)
{
    const TemporaryFolder outside;
    outside.write("secret.txt", "secret");
    put("in.txt", "12345");
    put("back\\slash.txt");
    fs::create_symlink(outside / "secret.txt", folder / "drive_c/out.txt");
    fs::create_symlink("nowhere", folder / "drive_c/dangling.txt");
    fs::create_symlink("in.txt", folder / "drive_c/link.txt");
    ::mkfifo((folder / "drive_c/pipe.txt").c_str(), 0600);

    EXPECT_THAT(namesIn("C:\\"), ElementsAre("in.txt", "link.txt"));
    EXPECT_EQ(5, files.entries("C:\\")[1].size);
    EXPECT_THAT(files.matching("C:\\*.txt"), ElementsAre("in.txt", "link.txt"));
    EXPECT_FALSE(files.fileExists("C:\\out.txt"));
    EXPECT_EQ(70, errorOf([&] { files.createTextFile("C:\\out.txt"); }));
    EXPECT_EQ(70, errorOf([&] { files.deleteFile("C:\\out.txt"); }));
    EXPECT_EQ("secret", outside.read("secret.txt"));
}

TEST_F(SiteFileSystemTest, AFileMadeAnewLeavesWhatItsOtherNamesHold)
{
    put("kept.txt", "kept");
    fs::create_hard_link(folder / "drive_c/kept.txt", folder / "drive_c/copy.txt");

    files.createTextFile("C:\\copy.txt")->write("new");
    EXPECT_EQ("new", folder.read("drive_c/copy.txt"));
    EXPECT_EQ("kept", folder.read("drive_c/kept.txt"));
    EXPECT_EQ(1U, fs::hard_link_count(folder / "drive_c/copy.txt"));
}

TEST_F(SiteFileSystemTest, RemovesNothingThroughALink)
{
    put("other/keep.LOG");
    fs::create_symlink("other", folder / "drive_c/LOGS");

    EXPECT_EQ(70, errorOf([&] { files.deleteFile("C:\\LOGS\\keep.LOG"); }));
    EXPECT_NE(0, errorOf([&] { files.removeFolder("C:\\LOGS"); }));
    EXPECT_TRUE(folder.exists("drive_c/other/keep.LOG"));
}

/// While it lives, files are those of a user whom nobody gave leave to anything: root may see all.
struct AsNobody {
    AsNobody() { ::setfsuid(65534); }
    ~AsNobody() { ::setfsuid(::geteuid()); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
};

TEST_F(SiteFileSystemTest, AFolderThatNobodyMaySeeIsNoEmptyOne)
{
    put("logs/a.txt");
    const auto permissions = [&](const char* name, fs::perms allowed) {
        fs::permissions(folder / ("drive_c/" + std::string(name)), allowed);
    };
    fs::permissions(folder.path(), fs::perms(0755));
    permissions("logs", fs::perms(0700));
    {
        const AsNobody nobody;
        if (::access((folder / "drive_c/logs/a.txt").c_str(), F_OK) == 0 && ::geteuid() != 0)
            GTEST_SKIP() << "the folder is this user's own";
        EXPECT_EQ(70, errorOf([&] { files.matching("C:\\logs\\*.txt"); }));
        EXPECT_EQ(70, errorOf([&] { files.matching("C:\\logs\\below\\*.txt"); }));
    }
    permissions("logs", fs::perms(0744));
    {
        const AsNobody nobody;
        EXPECT_THAT(files.matching("C:\\logs\\*.txt"), ElementsAre("a.txt"))
            << "who goes on to it hears why it can't be looked at";
        EXPECT_EQ(70, errorOf([&] { files.file("C:\\logs\\a.txt"); }));
        EXPECT_EQ(70, errorOf([&] { files.entries("C:\\logs"); }));
    }
    permissions("logs", fs::perms(0755));
}

TEST_F(SiteFileSystemTest, AFolderThatLeavesItsDriveIsNoEmptyOne)
{
    const TemporaryFolder outside;
    outside.write("a.txt");
    fs::create_directory_symlink(outside.path(), folder / "drive_c/logs");
    EXPECT_EQ(70, errorOf([&] { files.matching("C:\\logs\\*.txt"); }));
}

TEST_F(SiteFileSystemTest, FindsPlainFilesByPattern)
{
    put("xml/ht1.XML");
    put("xml/HTbig.xml");
    put("xml/other.xml");
    put("xml/HTfolder.xml/x");

    EXPECT_THAT(files.matching("C:\\XML\\HT*.xml"), ElementsAre("ht1.XML", "HTbig.xml"));
    EXPECT_THAT(files.matching("C:/xml/*.*"), ElementsAre("ht1.XML", "HTbig.xml", "other.xml"));
    EXPECT_THAT(files.matching("C:\\xml\\none*"), IsEmpty());
    EXPECT_THAT(files.matching("C:\\none\\*"), IsEmpty());
    EXPECT_THAT(files.matching("C:\\x*\\*"), IsEmpty()) << "only the last part is a pattern";
    EXPECT_THAT(files.matching("D:\\*"), IsEmpty());
    EXPECT_THAT(files.matching("C:\\xml\\"), IsEmpty());
    EXPECT_THAT(files.matching(""), IsEmpty());
    files.changeFolder("C:\\xml");
    EXPECT_THAT(files.matching("o*"), ElementsAre("other.xml"));
    EXPECT_THAT(files.matching("C:o*"), ElementsAre("other.xml"));
    EXPECT_THAT(files.matching(folder / "drive_c/xml/o*"), ElementsAre("other.xml"));
}

TEST_F(SiteFileSystemTest, AddsUpAFolder)
{
    const TemporaryFolder outside;
    outside.write("large", std::string(1000, 'x'));
    put("logs/a", "1234");
    put("logs/sub/b", "12");
    fs::create_directory_symlink(outside.path(), folder / "drive_c/logs/link");

    EXPECT_EQ(6, files.folderSize("C:\\LOGS"));
    EXPECT_EQ(76, errorOf([&] { files.folderSize("C:\\none"); }));
    EXPECT_EQ(76, errorOf([&] { files.folderSize("C:\\logs\\a"); }));
    EXPECT_EQ(76, errorOf([&] { files.entries("C:\\none"); }));
    EXPECT_EQ(76, errorOf([&] { files.entries("C:\\logs\\a"); }));
}

TEST_F(SiteFileSystemTest, MakesTheLastLevelOfAFolder)
{
    files.createFolder("C:\\New");

    EXPECT_TRUE(folder.exists("drive_c/New"));
    EXPECT_EQ(58, errorOf([&] { files.createFolder("C:\\NEW"); }));
    EXPECT_EQ(76, errorOf([&] { files.createFolder("C:\\a\\b"); }));
    EXPECT_EQ(76, errorOf([&] { files.createFolder("D:\\a"); }));
    EXPECT_EQ(58, errorOf([&] { files.createFolder("C:\\"); }));
}

TEST_F(SiteFileSystemTest, RemovesNothingButAnEmptyFolder)
{
    const TemporaryFolder outside;
    outside.makeFolder("empty");
    paths.permit(outside.path());
    put("a/b/c.txt");
    put("file");
    fs::create_directory_symlink("empty", outside / "link");

    EXPECT_EQ(70, errorOf([&] { files.removeFolder("C:\\A"); }));
    EXPECT_EQ(76, errorOf([&] { files.removeFolder(outside / "link"); }));
    EXPECT_EQ(76, errorOf([&] { files.removeFolder("C:\\file"); }));
    EXPECT_EQ(76, errorOf([&] { files.removeFolder("C:\\none"); }));
    EXPECT_EQ(70, errorOf([&] { files.removeFolder("C:\\"); }));
    EXPECT_EQ(70, errorOf([&] { files.removeFolder("C:\\x\\.."); }));
    EXPECT_TRUE(folder.exists("drive_c/a/b/c.txt"));
    EXPECT_TRUE(outside.exists("empty"));
    EXPECT_TRUE(outside.exists("link"));

    fs::remove(folder / "drive_c/a/b/c.txt");
    files.removeFolder("C:\\A\\b");
    EXPECT_FALSE(folder.exists("drive_c/a/b"));
}

TEST_F(SiteFileSystemTest, WritesOverPlainFilesAlone)
{
    const TemporaryFolder outside;
    outside.write("kept", "kept");
    put("source", "new");
    fs::create_symlink(outside / "kept", outside / "link");
    fs::create_symlink(outside / "made", outside / "dangling");
    ASSERT_EQ(0, ::mkfifo((outside / "pipe").c_str(), 0600));
    for (const char* name : {"link", "dangling", "pipe"}) {
        EXPECT_EQ(70, errorOf([&] { files.copyFile("C:\\source", outside / name); })) << name;
        EXPECT_EQ(70, errorOf([&] { files.createTextFile(outside / name); })) << name;
    }
    EXPECT_EQ("kept", outside.read("kept"));
    EXPECT_FALSE(outside.exists("made"));
}

TEST_F(SiteFileSystemTest, SweepsWhatAKilledCopyLeftBesideItsTarget)
{
    put("source", "new");
    const std::string left = put("to/.new-7-1", "half of one");
    fs::last_write_time(left, fs::file_time_type::clock::now() - std::chrono::hours(2));
    put("to/.new-notes", "a person's");
    files.copyFile("C:\\source", "C:\\to\\copy");
    EXPECT_FALSE(fs::exists(left));
    EXPECT_TRUE(folder.exists("drive_c/to/.new-notes"));
}

TEST_F(SiteFileSystemTest, WhatItMakesHasTheUsersOwnModes)
{
    const struct {
        mode_t mask;
        fs::perms file;
    } cases[] = {
        {0077, fs::perms(0600)},
        {0022, fs::perms(0644)},
        {0002, fs::perms(0664)},
    };
    fs::permissions(put("template", "x"), fs::perms(0444));
    for (const auto& c : cases) {
        const auto before = ::umask(c.mask);
        files.copyFile("C:\\template", "C:\\copy");
        EXPECT_TRUE(files.file("C:\\copy").readOnly);
        files.clearAttributes("C:\\copy");
        files.createTextFile("C:\\text");
        files.createPrivateFolder("C:\\private");
        ::umask(before);
        const auto modeOf = [&](const std::string& name) {
            return fs::status(folder / ("drive_c/" + name)).permissions();
        };
        EXPECT_EQ(c.file, modeOf("copy"));
        EXPECT_EQ(c.file, modeOf("text"));
        EXPECT_EQ(fs::perms::owner_all, modeOf("private"));
        fs::remove(folder / "drive_c/copy");
        fs::remove(folder / "drive_c/text");
        fs::remove(folder / "drive_c/private");
    }
}

TEST_F(SiteFileSystemTest, CopiesAFileWholeOverAnother)
{
    const std::string bytes(3'000'001, 'x');
    put("source.txt", bytes);
    modify("source.txt", 1'000'000'000);
    fs::permissions(folder / "drive_c/source.txt", fs::perms::owner_all);
    put("Target.txt", "old");

    files.copyFile("C:\\source.txt", "C:\\TARGET.TXT");

    EXPECT_TRUE(bytes == folder.read("drive_c/Target.txt"));
    EXPECT_EQ(files.file("C:\\source.txt").modified, files.file("C:\\target.txt").modified);
    EXPECT_EQ(fs::perms::owner_all, fs::status(folder / "drive_c/Target.txt").permissions());
    EXPECT_THAT(namesIn("C:\\"), ElementsAre("source.txt", "Target.txt"));
}

TEST_F(SiteFileSystemTest, CopiesBetweenSiteAndMachine)
{
    put("empty.txt");
    const TemporaryFolder other;
    EXPECT_EQ(70, errorOf([&] { files.copyFile("C:\\empty.txt", other / "copy.txt"); }));
    EXPECT_FALSE(other.exists("copy.txt"));
    paths.permit(other.path());
    paths.permit("/proc/self/status");

    files.copyFile("C:\\empty.txt", other / "copy.txt");
    files.copyFile("/proc/self/status", "C:\\status.txt");

    EXPECT_TRUE(other.exists("copy.txt"));
    EXPECT_NE("", folder.read("drive_c/status.txt")) << "a file without a size of its own";
}

TEST_F(SiteFileSystemTest, ACopyThatCannotBeMadeLeavesTheTarget)
{
    put("source.txt", "new");
    fs::permissions(put("locked.txt", "old"), fs::perms::owner_read);
    put("sub/x");

    EXPECT_EQ(70, errorOf([&] { files.copyFile("C:\\source.txt", "C:\\locked.txt"); }));
    EXPECT_EQ(70, errorOf([&] { files.copyFile("C:\\source.txt", "C:\\sub"); }));
    EXPECT_EQ(70, errorOf([&] { files.copyFile("C:\\source.txt", "C:\\SOURCE.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.copyFile("C:\\source.txt", "C:\\none\\x"); }));
    EXPECT_EQ("old", folder.read("drive_c/locked.txt"));
    EXPECT_EQ("new", folder.read("drive_c/source.txt"));
}

TEST_F(SiteFileSystemTest, ACopyOntoAFullDiskRaises61AndLeavesTheTarget)
{
    put("source.txt", std::string(200'000, 'x'));
    put("target.txt", "old");
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{100'000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);

    const int error = errorOf([&] { files.copyFile("C:\\source.txt", "C:\\target.txt"); });

    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(61, error);
    EXPECT_EQ("old", folder.read("drive_c/target.txt"));
    EXPECT_THAT(namesIn("C:\\"), ElementsAre("source.txt", "target.txt"));
}

TEST_F(SiteFileSystemTest, DeletesAFileUnlessItIsReadOnly)
{
    fs::permissions(put("a.txt"), fs::perms::owner_read);

    EXPECT_EQ(70, errorOf([&] { files.deleteFile("C:\\A.txt"); }));
    files.clearAttributes("C:\\A.TXT");
    EXPECT_FALSE(files.file("C:\\a.txt").readOnly);
    files.deleteFile("C:\\A.txt");

    EXPECT_FALSE(folder.exists("drive_c/a.txt"));
}

TEST_F(SiteFileSystemTest, OpensStreams)
{
    files.createTextFile("C:\\a.txt")->writeLine("one");
    files.openForAppending("C:\\A.TXT")->writeLine("two");
    files.openForAppending("C:\\b.txt")->writeLine("three");

    EXPECT_EQ("one\r\ntwo\r\n", files.openForReading("c:/a.txt")->readAll());
    EXPECT_EQ("three\r\n", folder.read("drive_c/b.txt"));
    EXPECT_EQ(76, errorOf([&] { files.createTextFile("C:\\none\\a.txt"); }));
    EXPECT_EQ(76, errorOf([&] { files.openForAppending("C:\\none\\a.txt"); }));
    EXPECT_EQ(70, errorOf([&] { files.openForReading("C:\\"); }));
    EXPECT_EQ(70, errorOf([&] { files.openForAppending("C:\\"); }));
    fs::permissions(folder / "drive_c/b.txt", fs::perms::owner_read);
    EXPECT_EQ(70, errorOf([&] { files.openForAppending("C:\\b.txt"); }));
    EXPECT_EQ(70, errorOf([&] { files.createTextFile("C:\\b.txt"); }));
    EXPECT_EQ("three\r\n", folder.read("drive_c/b.txt"));
}

TEST_F(SiteFileSystemTest, RefusesNamesThatAreNone)
{
    const std::string zero("C:\\a\0b", 6);

    for (const auto& path : {std::string(), zero}) {
        EXPECT_EQ(52, errorOf([&] { files.file(path); }));
        EXPECT_EQ(52, errorOf([&] { files.createTextFile(path); }));
        EXPECT_EQ(52, errorOf([&] { files.createFolder(path); }));
    }
    EXPECT_EQ(76, errorOf([&] { files.createFolder("C:\\" + std::string(300, 'x')); }));
}

TEST_F(SiteFileSystemTest, TellsDrivesAndTheirSpace)
{
    const auto space = files.diskSpace("C:\\");

    EXPECT_GT(space.totalBytes, 0);
    EXPECT_GE(space.totalBytes, space.freeBytes);
    EXPECT_EQ(space.totalBytes, files.diskSpace("C:").totalBytes);
    EXPECT_EQ(76, errorOf([&] { files.diskSpace("Q:\\"); }));
    EXPECT_EQ("C:", files.driveName("C:\\x"));
    EXPECT_EQ("", files.driveName("/tmp"));
}

TEST_F(SiteFileSystemTest, KnowsTheSystemsFolders)
{
    EXPECT_EQ("C:\\Windows", files.specialFolder(SpecialFolder::windows));
    EXPECT_EQ("C:\\Temp", files.specialFolder(SpecialFolder::temporary));
    EXPECT_EQ("C:\\PROGRA~1\\x", files.longPathName("C:\\PROGRA~1\\x"));
}

} // namespace
