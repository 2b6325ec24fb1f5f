#include "system/root_folder.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace {

namespace fs = std::filesystem;

class RootFolderTest : public testing::Test {
protected:
    RootFolderTest()
    {
        box.write("in/a/File.txt", "inside");
        box.write("out/secret.txt", "secret");
        fs::create_symlink("../out", box / "in/away");
        fs::create_symlink("a", box / "in/near");
    }

    TemporaryFolder box;
    RootFolder root{(box.makeFolder("in"), box / "in")};
};

TEST_F(RootFolderTest, ThePersonsOwnWayToItMayBeALink)
{
    fs::create_symlink("in", box / "byLink");
    EXPECT_TRUE(RootFolder(box / "byLink").isFile("a/File.txt"));
    EXPECT_EQ(76, errorOf([&] { RootFolder(box / "none"); }));
    EXPECT_EQ(76, errorOf([&] { RootFolder(box / "out/secret.txt"); }));
}

TEST_F(RootFolderTest, StaysTheFolderThatWasOpened)
{
    fs::rename(box / "in", box / "elsewhere");
    fs::create_directory_symlink("out", box / "in");
    EXPECT_TRUE(root.isFile("a/File.txt"));
    EXPECT_FALSE(root.isFile("secret.txt"));
}

TEST_F(RootFolderTest, AFolderBelowIsABoundOfItsOwn)
{
    box.write("in/b/x.txt");
    fs::create_symlink("../b/x.txt", box / "in/a/neighbour");
    EXPECT_TRUE(root.isFile("a/neighbour"));
    EXPECT_FALSE(root.below("a").isFile("neighbour"));
    EXPECT_EQ(70, errorOf([&] { root.below("away"); }));
    EXPECT_EQ(76, errorOf([&] { root.below("a/File.txt"); }));
}

TEST_F(RootFolderTest, WhatLeadsOutIsRefusedByName)
{
    const std::string text =
        "Permission denied: " + (box / "in/away/secret.txt") + " leads out of the site";
    EXPECT_EQ(text, errorTextOf([&] { root.openFile("away/secret.txt", O_RDONLY, 53); }));
    EXPECT_EQ(70, errorOf([&] { root.facts("away/secret.txt"); }));
    EXPECT_EQ(70, errorOf([&] { root.names("away"); }));
    EXPECT_EQ(70, errorOf([&] { root.makeFolder("away/new"); }));
    EXPECT_EQ(70, errorOf([&] { root.removeFile("away/secret.txt"); }));
    EXPECT_EQ(76, errorOf([&] { root.removeFolder("away"); })) << "a link is no folder";
    EXPECT_EQ(70, errorOf([&] { root.machinePath("away/secret.txt"); }));
    EXPECT_EQ("secret", box.read("out/secret.txt"));
}

TEST_F(RootFolderTest, OpensPlainFilesAloneAndWaitsForNothing)
{
    ASSERT_EQ(0, ::mkfifo((box / "in/pipe").c_str(), 0666));
    const FileDescriptor listener(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (box / "in/socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(0, ::bind(listener.get(), reinterpret_cast<sockaddr*>(&address), sizeof address));

    for (const char* name : {"pipe", "socket", "a"})
        for (const int flags : {O_RDONLY, O_WRONLY, O_RDWR | O_CREAT})
            EXPECT_EQ(70, errorOf([&] { root.openFile(name, flags, 53); })) << name << flags;
    EXPECT_THAT(errorTextOf([&] { root.openFile("pipe", O_WRONLY, 53); }),
                testing::EndsWith("in/pipe is no plain file"));
    EXPECT_EQ(53, errorOf([&] { root.openFile("none", O_RDONLY, 53); }));
    const RootFolder devices("/dev", RootFolder::Bounds::machine);
    EXPECT_EQ(70, errorOf([&] { devices.openFile("zero", O_RDONLY, 53); }));
}

TEST_F(RootFolderTest, FindsNamesInAnyCase)
{
    EXPECT_EQ("a/File.txt", root.pathIgnoringCase({"A", "FILE.TXT"}));
    EXPECT_EQ("near/File.txt", root.pathIgnoringCase({"NEAR", "file.txt"}));
    EXPECT_EQ("a/New/More", root.pathIgnoringCase({"A", "New", "More"}));
    EXPECT_EQ("", root.pathIgnoringCase({}));
    EXPECT_EQ(70, errorOf([&] { root.pathIgnoringCase({"AWAY", "secret.txt"}); }));
    EXPECT_EQ(70, errorOf([&] { root.pathIgnoringCase({"AWAY"}); }));
}

TEST_F(RootFolderTest, ANameInAnotherCaseThatTheMachineCannotLookForIsNotTakenForAbsent)
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

TEST_F(RootFolderTest, TellsWhereAPathLies)
{
    EXPECT_EQ(box / "in/a/File.txt", root.machinePath("near/File.txt"));
    EXPECT_EQ(box / "in/a/new/more", root.machinePath("near/new/more"));
    EXPECT_EQ(box / "in", root.machinePath(""));
    EXPECT_EQ("/usr", RootFolder("/").machinePath("usr"));
}

TEST_F(RootFolderTest, FactsAreOfTheTargetOrOfTheNameItself)
{
    EXPECT_TRUE(S_ISDIR(root.facts("near")->st_mode));
    EXPECT_TRUE(S_ISLNK(root.ownFacts("near")->st_mode));
    EXPECT_TRUE(S_ISLNK(root.ownFacts("away")->st_mode));
    EXPECT_FALSE(root.facts("none"));
    EXPECT_FALSE(root.facts("a/File.txt/none"));
    EXPECT_TRUE(root.isFile("near/File.txt"));
    EXPECT_FALSE(root.isFile("away/secret.txt"));
    EXPECT_FALSE(root.isFolder("away"));
}

TEST_F(RootFolderTest, RemovesNothingThroughALink)
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

TEST_F(RootFolderTest, MakesFolders)
{
    root.makeFolders("x/y/z");
    root.makeFolders("x/y/z");
    EXPECT_TRUE(root.isFolder("x/y/z"));
    EXPECT_EQ(58, errorOf([&] { root.makeFolder("x"); }));
    EXPECT_EQ(76, errorOf([&] { root.makeFolder("none/x"); }));
    EXPECT_THAT(root.names(""), testing::UnorderedElementsAre("a", "away", "near", "x"));
}

} // namespace
