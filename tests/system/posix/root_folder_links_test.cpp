#include "system/root_folder.h"

#include "support/temporary_folder.h"
#include "system/file_bytes.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class RootFolderLinksTest : public testing::Test {
protected:
    RootFolderLinksTest()
    {
        box.write("in/a/File.txt", "inside");
        box.write("out/secret.txt", "secret");
        fs::create_symlink("../out", box / "in/away");
        fs::create_symlink("a", box / "in/near");
    }

    TemporaryFolder box;
    RootFolder root{(box.makeFolder("in"), box / "in")};
};

TEST_F(RootFolderLinksTest, ThePersonsOwnWayToItMayBeALink)
{
    fs::create_symlink("in", box / "byLink");
    EXPECT_TRUE(RootFolder(box / "byLink").isFile("a/File.txt"));
    EXPECT_EQ(76, errorOf([&] { RootFolder(box / "none"); }));
    EXPECT_EQ(76, errorOf([&] { RootFolder(box / "out/secret.txt"); }));
}

TEST_F(RootFolderLinksTest, StaysTheFolderThatWasOpened)
{
    fs::rename(box / "in", box / "elsewhere");
    fs::create_directory_symlink("out", box / "in");
    EXPECT_TRUE(root.isFile("a/File.txt"));
    EXPECT_FALSE(root.isFile("secret.txt"));
}

TEST_F(RootFolderLinksTest, AFolderBelowIsABoundOfItsOwn)
{
    box.write("in/b/x.txt");
    fs::create_symlink("../b/x.txt", box / "in/a/neighbour");
    EXPECT_TRUE(root.isFile("a/neighbour"));
    EXPECT_FALSE(root.below("a").isFile("neighbour"));
    EXPECT_EQ(70, errorOf([&] { root.below("away"); }));
    EXPECT_EQ(76, errorOf([&] { root.below("a/File.txt"); }));
}

TEST_F(RootFolderLinksTest, WhatLeadsOutIsRefusedByName)
{
    const std::string text =
        "Permission denied: " + (box / "in/away/secret.txt") + " leads out of the site";
    EXPECT_EQ(text, errorTextOf([&] { root.openFile("away/secret.txt", forReading, 53); }));
    EXPECT_EQ(70, errorOf([&] { root.facts("away/secret.txt"); }));
    EXPECT_EQ(70, errorOf([&] { root.names("away"); }));
    EXPECT_EQ(70, errorOf([&] { root.makeFolder("away/new"); }));
    EXPECT_EQ(70, errorOf([&] { root.removeFile("away/secret.txt"); }));
    EXPECT_EQ(76, errorOf([&] { root.removeFolder("away"); })) << "a link is no folder";
    EXPECT_EQ(70, errorOf([&] { root.machinePath("away/secret.txt"); }));
    EXPECT_EQ("secret", box.read("out/secret.txt"));
}

TEST_F(RootFolderLinksTest, OpensPlainFilesAloneAndWaitsForNothing)
{
    ASSERT_EQ(0, ::mkfifo((box / "in/pipe").c_str(), 0666));
    const FileDescriptor listener(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (box / "in/socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(0, ::bind(listener.get(), reinterpret_cast<sockaddr*>(&address), sizeof address));

    for (const char* name : {"pipe", "socket", "a"})
        for (const auto& opening : {forReading, FileOpening{FileAccess::write},
                                    FileOpening{FileAccess::readAndWrite, Creation::ifMissing}})
            EXPECT_EQ(70, errorOf([&] { root.openFile(name, opening, 53); }))
                << name << static_cast<int>(opening.access);
    EXPECT_THAT(errorTextOf([&] { root.openFile("pipe", {FileAccess::write}, 53); }),
                testing::EndsWith("in/pipe is no plain file"));
    EXPECT_EQ(53, errorOf([&] { root.openFile("none", forReading, 53); }));
    const RootFolder devices("/dev", RootFolder::Bounds::machine);
    EXPECT_EQ(70, errorOf([&] { devices.openFile("zero", forReading, 53); }));
}

TEST_F(RootFolderLinksTest, FindsNamesInAnyCase)
{
    EXPECT_EQ("a/File.txt", root.pathIgnoringCase({"A", "FILE.TXT"}));
    EXPECT_EQ("near/File.txt", root.pathIgnoringCase({"NEAR", "file.txt"}));
    EXPECT_EQ("a/New/More", root.pathIgnoringCase({"A", "New", "More"}));
    EXPECT_EQ("", root.pathIgnoringCase({}));
    EXPECT_EQ(70, errorOf([&] { root.pathIgnoringCase({"AWAY", "secret.txt"}); }));
    EXPECT_EQ(70, errorOf([&] { root.pathIgnoringCase({"AWAY"}); }));
}

TEST_F(RootFolderLinksTest, ANameInAnotherCaseThatTheMachineCannotLookForIsNotTakenForAbsent)
{
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const int next = ::dup(0);
    ::close(next);
    std::vector<std::string> found;
    std::vector<int> errors;
    for (rlim_t more = 0; more < 3; ++more) {
        const rlimit few{static_cast<rlim_t>(next) + more, before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &few);
        errors.push_back(errorOf([&] { found.push_back(root.pathIgnoringCase({"A"})); }));
        ::setrlimit(RLIMIT_NOFILE, &before);
    }
    EXPECT_THAT(errors, testing::ElementsAre(57, 57, 0));
    EXPECT_THAT(found, testing::ElementsAre("a"));
}

TEST_F(RootFolderLinksTest, TellsWhereAPathLies)
{
    EXPECT_EQ(box / "in/a/File.txt", root.machinePath("near/File.txt"));
    EXPECT_EQ(box / "in/a/new/more", root.machinePath("near/new/more"));
    EXPECT_EQ(box / "in", root.machinePath(""));
    EXPECT_EQ("/usr", RootFolder("/").machinePath("usr"));
}

TEST_F(RootFolderLinksTest, ANameThatIsTooLongLiesWhereItWouldBe)
{
    const std::string name(300, 'x');
    EXPECT_EQ((box / "in/a/") + name, root.machinePath("near/" + name));
}

TEST_F(RootFolderLinksTest, FactsAreOfTheTargetOrOfTheNameItself)
{
    EXPECT_EQ(FileKind::folder, root.facts("near")->kind);
    EXPECT_EQ(FileKind::link, root.unfollowedFacts("near")->kind);
    EXPECT_EQ(FileKind::link, root.unfollowedFacts("away")->kind);
    EXPECT_FALSE(root.facts("none"));
    EXPECT_FALSE(root.facts("a/File.txt/none"));
    EXPECT_TRUE(root.isFile("near/File.txt"));
    EXPECT_FALSE(root.isFile("away/secret.txt"));
    EXPECT_FALSE(root.isFolder("away"));
}

TEST_F(RootFolderLinksTest, RemovesNothingThroughALink)
{
    EXPECT_EQ(70, errorOf([&] { root.removeFile("near/File.txt"); }));
    EXPECT_EQ(76, errorOf([&] { root.removeFolder("near"); }));
    root.removeFile("near");
    EXPECT_FALSE(fs::is_symlink(box / "in/near"));
    EXPECT_EQ("inside", box.read("in/a/File.txt"));

    fs::create_symlink("../../out", box / "in/a/away");
    EXPECT_EQ(6, root.size("a"));
    root.removeFolder("a");
    EXPECT_FALSE(box.exists("in/a"));
    EXPECT_EQ("secret", box.read("out/secret.txt"));
}

TEST_F(RootFolderLinksTest, AFolderCanBeMadeForItsOwnerAlone)
{
    root.makeFolder("own", OthersMay::nothing);
    EXPECT_EQ(fs::perms::owner_all, fs::status(box / "in/own").permissions());
}

TEST_F(RootFolderLinksTest, OpensAFileAsItIsAsked)
{
    const FileOpening fresh{FileAccess::write, Creation::always};
    writeAll(root.openFile("new", fresh, 53), "one");
    EXPECT_EQ(58, errorOf([&] { root.openFile("new", fresh, 53); }));
    EXPECT_EQ(58, errorOf([&] { root.openFile("near", fresh, 53); })) << "a link bears the name";
    writeAll(root.openFile("new", {FileAccess::append, Creation::ifMissing}, 53), " two");
    EXPECT_EQ("one two", box.read("in/new"));
    writeAll(root.openFile("new", {FileAccess::readAndWrite}, 53), "ONE");
    EXPECT_EQ("ONE two", box.read("in/new"));
    fs::create_symlink("new", box / "in/toNew");
    EXPECT_EQ(70, errorOf([&] { root.openFile("toNew", {.lastLink = LastLink::refused}, 53); }));
}

TEST_F(RootFolderLinksTest, WhatMayNotBeOpenedIsNoErrorWhereThatIsAllowedFor)
{
    const FileOpening writing{FileAccess::readAndWrite, Creation::ifMissing};
    EXPECT_TRUE(root.openIfAllowed("lock", writing, 76).isOpen());
    EXPECT_EQ(76, errorOf([&] { root.openIfAllowed("none/lock", writing, 76); }));
    EXPECT_EQ(70, errorOf([&] { root.openIfAllowed("away/lock", writing, 76); }));
    fs::permissions(box / "in", fs::perms(0555));
    ::setfsuid(65534); // the one who may do everything is no test
    EXPECT_FALSE(root.openIfAllowed("other", writing, 76).isOpen());
    ::setfsuid(::geteuid());
    fs::permissions(box / "in", fs::perms(0755));
}

TEST_F(RootFolderLinksTest, AFileThatALinkLeadsToCanBeMadeWritable)
{
    fs::permissions(box / "in/a/File.txt", fs::perms::owner_read);
    root.allowWriting("near/File.txt");
    EXPECT_FALSE(root.facts("a/File.txt")->readOnly);
    EXPECT_EQ(70, errorOf([&] { root.allowWriting("away/secret.txt"); }));
}

} // namespace
