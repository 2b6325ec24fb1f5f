#include "system/posix/open_beneath.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using Way = FileDescriptor (*)(int, const std::string&, int, mode_t, Links);

struct NamedWay {
    const char* name;
    Way way;
};

FileDescriptor openBeneathByDefault(int folder, const std::string& path, int flags, mode_t mode,
                                    Links links)
{
    return openBeneath(folder, path, flags, mode, links);
}

class OpenBeneathTest : public testing::TestWithParam<NamedWay> {
protected:
    OpenBeneathTest()
    {
        box.write("in/a/deep/file.txt", "inside");
        box.write("in/b/other.txt", "other");
        box.write("out/secret.txt", "secret");
        root = FileDescriptor(::open((box / "in").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    }

    void link(const std::string& target, const std::string& name) const
    {
        fs::create_symlink(target, box / ("in/" + name));
    }

    FileDescriptor open(const std::string& path, int flags = O_RDONLY,
                        Links links = Links::within) const
    {
        return GetParam().way(root.get(), path, flags, 0644, links);
    }

    /// What stands in the file, or the number of the failure.
    std::string outcome(const std::string& path, int flags = O_RDONLY,
                        Links links = Links::within) const
    {
        const FileDescriptor file = open(path, flags, links);
        if (!file.isOpen()) return std::to_string(errno);
        char text[64];
        const ssize_t count = ::read(file.get(), text, sizeof text);
        return count < 0 ? "no file" : std::string(text, static_cast<std::size_t>(count));
    }

    static std::string error(int number) { return std::to_string(number); }

    TemporaryFolder box;
    FileDescriptor root;
};

TEST_P(OpenBeneathTest, FilesAndFoldersBelowAreOpened)
{
    EXPECT_EQ("inside", outcome("a/deep/file.txt"));
    EXPECT_EQ("inside", outcome("a//deep/./file.txt"));
    EXPECT_EQ("other", outcome("a/deep/../../b/other.txt"));
    EXPECT_TRUE(open("", O_PATH | O_DIRECTORY).isOpen());
    EXPECT_TRUE(open("a", O_PATH | O_DIRECTORY).isOpen());
    EXPECT_TRUE(open("a/", O_PATH | O_DIRECTORY).isOpen());
    EXPECT_EQ(error(ENOENT), outcome("a/none.txt"));
    EXPECT_EQ(error(ENOENT), outcome("none/file.txt"));
    EXPECT_EQ(error(ENOTDIR), outcome("b/other.txt/more"));
}

TEST_P(OpenBeneathTest, LinksThatStayInsideAreFollowed)
{
    link("deep/file.txt", "a/near");
    link("../a/deep", "b/folder");
    link("./b/../a/near", "chain");

    EXPECT_EQ("inside", outcome("a/near"));
    EXPECT_EQ("inside", outcome("b/folder/file.txt"));
    EXPECT_EQ("other", outcome("b/folder/../../b/other.txt")) << "up from where the link led";
    EXPECT_EQ("inside", outcome("chain"));
}

TEST_P(OpenBeneathTest, NothingLeadsOut)
{
    link("../out/secret.txt", "file");
    link("../out", "folder");
    link("../../out", "a/up");
    link(box / "out", "absolute");
    link(box / "in/b", "absoluteInside");
    link("..", "parent");
    link("file", "second");
    link("../in/b/other.txt", "outAndIn");

    for (const char* path :
         {"file", "folder/secret.txt", "a/up/secret.txt", "absolute/secret.txt", "parent",
          "absoluteInside/other.txt", "parent/out/secret.txt", "second", "../out/secret.txt",
          "a/../../out/secret.txt", "outAndIn", ".."})
        EXPECT_EQ(error(EXDEV), outcome(path)) << path;
    EXPECT_EQ(error(EXDEV), outcome(box / "in/b/other.txt"));
    EXPECT_EQ(error(EXDEV), outcome("folder/new.txt", O_WRONLY | O_CREAT));
    EXPECT_FALSE(box.exists("out/new.txt"));
    EXPECT_EQ("secret", box.read("out/secret.txt"));
}

TEST_P(OpenBeneathTest, LinksInALoopAreGivenUp)
{
    link("loop", "loop");
    link("pong", "ping");
    link("ping", "pong");

    EXPECT_EQ(error(ELOOP), outcome("loop"));
    EXPECT_EQ(error(ELOOP), outcome("ping/file.txt"));
}

TEST_P(OpenBeneathTest, NoLinkAtAllIsFollowedWhereNoneIsWanted)
{
    link("a/deep", "inside");

    EXPECT_EQ(error(ELOOP), outcome("inside/file.txt", O_RDONLY, Links::none));
    EXPECT_EQ("inside", outcome("a/deep/file.txt", O_RDONLY, Links::none));
}

TEST_P(OpenBeneathTest, ALinkItselfIsOpenedOrRefusedWhereItIsNotToBeFollowed)
{
    link("../out/secret.txt", "file");

    EXPECT_EQ(error(ELOOP), outcome("file", O_RDONLY | O_NOFOLLOW));
    struct stat facts {};
    const FileDescriptor itself = open("file", O_PATH | O_NOFOLLOW);
    ASSERT_EQ(0, ::fstat(itself.get(), &facts));
    EXPECT_TRUE(S_ISLNK(facts.st_mode));
    EXPECT_EQ(error(EEXIST), outcome("file", O_WRONLY | O_CREAT | O_EXCL));
}

TEST_P(OpenBeneathTest, AFileIsMadeWhereALinkInsideLeads)
{
    link("b/made.txt", "new");

    EXPECT_TRUE(open("a/own.txt", O_WRONLY | O_CREAT | O_EXCL).isOpen());
    EXPECT_TRUE(open("new", O_WRONLY | O_CREAT).isOpen());
    EXPECT_TRUE(box.exists("in/a/own.txt"));
    EXPECT_TRUE(box.exists("in/b/made.txt"));
}

TEST_P(OpenBeneathTest, AFolderThatIsExchangedForALinkMeanwhileNeverLeadsOut)
{
    box.write("out/deep/file.txt", "secret");
    fs::create_symlink(box / "out", box / "away");
    std::atomic<bool> done{false};
    std::thread exchanger([&] {
        while (!done)
            ::renameat2(AT_FDCWD, (box / "away").c_str(), AT_FDCWD, (box / "in/a").c_str(),
                        RENAME_EXCHANGE);
    });
    int inside = 0;
    int secret = 0;
    for (int i = 0; i < 5000 || (inside == 0 && i < 5'000'000); ++i) {
        const std::string found = outcome("a/deep/file.txt");
        if (found == "inside") ++inside;
        if (found == "secret") ++secret;
    }
    done = true;
    exchanger.join();

    EXPECT_EQ(0, secret);
    EXPECT_LT(0, inside);
}

std::string nameOf(const testing::TestParamInfo<NamedWay>& tested)
{
    return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Ways, OpenBeneathTest,
                         testing::Values(NamedWay{"Kernel", openBeneathByKernel},
                                         NamedWay{"Walk", openBeneathByWalk},
                                         NamedWay{"Either", openBeneathByDefault}),
                         nameOf);

} // namespace
