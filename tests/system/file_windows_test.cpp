#include "system/file_windows.h"

#include "support/temporary_folder.h"
#include "system/file_bytes.h"
#include "system/file_lock.h"
#include "system/root_folder.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr std::size_t windowBytes = 65536;

class FileWindowsTest : public testing::Test {
protected:
    FileWindowsTest() { box.write("file", std::string(4 * windowBytes, 'a')); }

    char inFile(std::uint64_t at) const
    {
        char byte = '?';
        EXPECT_EQ(1u, readAt(file, &byte, 1, at));
        return byte;
    }

    TemporaryFolder box;
    RootFolder root{(box.write("x"), box.path())};
    FileDescriptor file = root.openFile(
        "file", {.access = FileAccess::readAndWrite, .creation = Creation::ifMissing}, 53);
};

TEST_F(FileWindowsTest, ShowTheFileAndStoreIntoIt)
{
    FileWindows windows(file, 2, windowBytes);
    {
        const FileWindows::Use use(windows);
        windows.show(0, windowBytes);
        windows.show(1, 3 * windowBytes);
        EXPECT_EQ('a', windows.memory()[7]);
        windows.memory()[7] = 'b';
        windows.memory()[windowBytes + 9] = 'c';
        EXPECT_FALSE(windows.failed());
        EXPECT_EQ('b', inFile(windowBytes + 7));
        windows.memory()[8] = 'd';
        windows.show(0, 0);
        EXPECT_EQ('d', inFile(windowBytes + 8)) << "a part that is left";
        windows.memory()[1] = 'e';
    }
    EXPECT_EQ('e', inFile(1)) << "a use that ends";
    EXPECT_EQ('c', inFile(3 * windowBytes + 9));
    EXPECT_EQ(4 * windowBytes, box.read("file").size());
}

TEST_F(FileWindowsTest, ShowWhatIsWrittenByACall)
{
    FileWindows windows(file, 2, windowBytes);
    const FileWindows::Use use(windows);
    windows.show(0, 0);
    windows.show(1, windowBytes);
    windows.memory()[5] = 'b';
    EXPECT_EQ(4u, windows.write("wxyz", windowBytes - 2));
    EXPECT_EQ('b', inFile(5)) << "in the order in which it was stored";
    EXPECT_EQ(0, std::memcmp(windows.memory() + windowBytes - 2, "wxyz", 4));
    EXPECT_EQ(4u, windows.write("more", 4 * windowBytes));
    EXPECT_EQ('m', inFile(4 * windowBytes));
}

TEST_F(FileWindowsTest, AStoreBehindTheEndFailsAndAllAfterItStayOutOfTheFile)
{
    FileWindows windows(file, 2, windowBytes);
    const FileWindows::Use use(windows);
    windows.show(0, 0);
    windows.show(1, 3 * windowBytes);
    ASSERT_TRUE(windows.cut(2 * windowBytes));
    windows.memory()[windowBytes] = 'x';
    EXPECT_TRUE(windows.failed());
    windows.memory()[0] = 'y';
    EXPECT_TRUE(windows.failed());
    EXPECT_EQ('a', inFile(0));
    EXPECT_EQ(2 * windowBytes, box.read("file").size());
    windows.goOn();
    EXPECT_FALSE(windows.failed());
    EXPECT_EQ('a', windows.memory()[0]);
    windows.memory()[0] = 'z';
    EXPECT_FALSE(windows.failed());
    EXPECT_EQ('z', inFile(0));
}

TEST_F(FileWindowsTest, ACutLeavesWhatIsBeforeItInTheWindows)
{
    FileWindows windows(file, 2, windowBytes);
    const FileWindows::Use use(windows);
    windows.show(0, 0);
    windows.show(1, 3 * windowBytes);
    windows.memory()[3] = 'b';
    EXPECT_TRUE(windows.cut(windowBytes + 10));
    EXPECT_EQ(windowBytes + 10, box.read("file").size());
    EXPECT_EQ('b', windows.memory()[3]);
    windows.memory()[4] = 'c';
    EXPECT_EQ('c', inFile(4));
    EXPECT_FALSE(windows.failed());
}

TEST_F(FileWindowsTest, AWindowGrowsWithTheFile)
{
    FileWindows windows(file, 1, 2 * windowBytes);
    const FileWindows::Use use(windows);
    ASSERT_TRUE(windows.cut(2 * windowBytes + 4096));
    windows.show(0, 2 * windowBytes);
    windows.memory()[4095] = 'b';
    const std::string more(windowBytes, 'm');
    EXPECT_EQ(more.size(), windows.write(more, 2 * windowBytes + 4096));
    EXPECT_EQ('b', windows.memory()[4095]);
    EXPECT_EQ('m', windows.memory()[4096 + windowBytes - 1]);
    windows.memory()[4096 + windowBytes - 1] = 'n';
    EXPECT_FALSE(windows.failed());
    EXPECT_EQ('n', inFile(2 * windowBytes + 4096 + windowBytes - 1));
}

TEST_F(FileWindowsTest, LocksKeepAnotherOpeningOutAndReadersIn)
{
    const auto other = root.openFile("file", {.access = FileAccess::readAndWrite}, 53);
    for (const auto& lock : {tryLock, tryLockBytes}) {
        FileDescriptor own = root.openFile("file", {.access = FileAccess::readAndWrite}, 53);
        EXPECT_TRUE(lock(own));
        EXPECT_FALSE(lock(other));
        EXPECT_EQ('a', inFile(0));
        writeAll(other, "a");
        own.close();
        EXPECT_TRUE(lock(other));
    }
}

TEST_F(FileWindowsTest, AFolderIsLockedByWhoeverHasItToPassOn)
{
    FileDescriptor own = root.openToPassOn();
    FileDescriptor other = RootFolder(box.path()).openToPassOn();
    FileDescriptor elsewhere = RootFolder(box.makeFolder("below")).openToPassOn();
    EXPECT_TRUE(tryLock(own));
    EXPECT_FALSE(tryLock(other));
    EXPECT_TRUE(tryLock(elsewhere));
    own.close();
    EXPECT_TRUE(tryLock(other));
}

} // namespace
