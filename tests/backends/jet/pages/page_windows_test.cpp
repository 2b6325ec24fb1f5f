#include "backends/jet/pages/page_windows.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

/// A file of a test's own, of so many pages of zeros.
class PagesOnDisk {
public:
    explicit PagesOnDisk(int pages) : file_(mkstemp(name_.data()))
    {
        EXPECT_EQ(0, unlink(name_.c_str()));
        cutTo(pages);
    }
    PagesOnDisk(const PagesOnDisk&) = delete;
    PagesOnDisk& operator=(const PagesOnDisk&) = delete;

    const FileDescriptor& file() const { return file_; }
    void cutTo(int pages) const { EXPECT_EQ(0, ftruncate(file_.get(), pages * 4096)); }

    char at(int page) const
    {
        char byte = '?';
        EXPECT_EQ(1, pread(file_.get(), &byte, 1, page * 4096));
        return byte;
    }

private:
    std::string name_ = testing::TempDir() + "orvan_pages_XXXXXX";
    FileDescriptor file_;
};

TEST(PageWindows, AStoreIsInTheFileAtOnce)
{
    const PagesOnDisk disk(2000);
    jet::PageWindows windows(disk.file());
    const jet::PageWindows::Use use(windows);
    for (int page = 0; page < 2000; ++page)
        windows.page(static_cast<std::uint32_t>(page))[0] = static_cast<char>('a' + page % 26);
    for (int page = 0; page < 2000; ++page) ASSERT_EQ('a' + page % 26, disk.at(page));
    EXPECT_FALSE(windows.failed());
}

TEST(PageWindows, SixteenPlacesStayWhereTheyAreWhereverTheyLie)
{
    const PagesOnDisk disk(256 * 20);
    jet::PageWindows windows(disk.file());
    const jet::PageWindows::Use use(windows);
    char* first = windows.page(7);
    for (std::uint32_t part = 1; part < 16; ++part) windows.page(part * 256)[0] = 'x';
    EXPECT_EQ(first, windows.page(7));
    for (std::uint32_t part = 16; part < 20; ++part) windows.page(part * 256)[0] = 'x';
    EXPECT_EQ(first, windows.page(7)) << "the ones that were not asked for since go first";
}

TEST(PageWindows, AStoreThatFailsAndAllAfterItStayOutOfTheFile)
{
    const PagesOnDisk disk(600);
    jet::PageWindows windows(disk.file());
    const jet::PageWindows::Use use(windows);
    windows.page(0)[0] = 'a';
    char* gone = windows.page(500);
    gone[0] = 'a';
    disk.cutTo(300);
    gone[0] = 'b';
    EXPECT_TRUE(windows.failed());
    gone[1] = 'b';
    windows.page(501)[0] = 'b';
    windows.page(0)[0] = 'b';
    windows.page(299)[0] = 'b'; // of a part that is looked at for the first time
    EXPECT_EQ('b', windows.page(0)[0]);
    EXPECT_EQ('a', disk.at(0));
    EXPECT_EQ(0, disk.at(299));

    windows.goOn();
    EXPECT_FALSE(windows.failed());
    EXPECT_EQ('a', windows.page(0)[0]);
    windows.page(0)[0] = 'c';
    EXPECT_EQ('c', disk.at(0));
    gone[0] = 'c';
    EXPECT_TRUE(windows.failed()) << "the file is still short";
}

TEST(PageWindowsDeathTest, AFaultOfAnotherPartOfTheProgramEndsItAsEver)
{
    const PagesOnDisk disk(10);
    jet::PageWindows windows(disk.file());
    char* page = windows.page(9);
    // By the handler that was there before: that of a sanitizer tells of it first.
    EXPECT_DEATH(
        {
            disk.cutTo(5);
            page[0] = 'x';
        },
        "");
}

} // namespace
