#include "backends/jet/pages/page_file.h"
#include "backends/jet/scratch_database.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

/// A file system that may be full, and takes its time to say so, by a clock of its own.
struct FullDisk {
    static constexpr auto refusalTakes = 2ms;

    bool full = false;
    int refusedWrites = 0;
    jet::PageFile::Moment now{};
} disk;

} // namespace

/// Stands in for the system's, which the pages are written with.
extern "C" ssize_t pwrite(int file, const void* bytes, size_t size, off_t at)
{
    if (!disk.full) return ::syscall(SYS_pwrite64, file, bytes, size, at);
    ++disk.refusedWrites;
    disk.now += FullDisk::refusalTakes;
    errno = ENOSPC;
    return -1;
}

namespace {

/// A file without room for one page more, on a full disk.
class PageFileOnAFullDisk : public testing::Test {
protected:
    PageFileOnAFullDisk()
    {
        disk = {};
        disk.full = true;
    }
    ~PageFileOnAFullDisk() override { disk = {}; }

    /// Whether the disk was asked for the room that was refused.
    bool isAsked()
    {
        const int before = disk.refusedWrites;
        EXPECT_EQ(3026, errorOf([&] { file_.reserve(1); }));
        return disk.refusedWrites > before;
    }

    /// How often room is refused without a question until the disk is asked once more.
    int passedOver()
    {
        int times = 0;
        while (!isAsked()) ++times;
        return times;
    }

    ScratchDatabase scratch_;
    jet::PageFile file_{scratch_.path().string(), [] { return disk.now; }};
};

TEST_F(PageFileOnAFullDisk, TheDiskIsAskedMoreAndMoreRarely)
{
    for (int refusal = 1; refusal <= 9; ++refusal)
        EXPECT_EQ(0, passedOver()) << "the first times it is asked each time";
    for (const int times : {1, 3, 7, 15, 31, 63, 127, 255, 511, 1023, 1023, 1023})
        EXPECT_EQ(times, passedOver());
}

TEST_F(PageFileOnAFullDisk, ItIsAskedAgainOnceTwentyTimesAsLongHasPassedAsItTookToRefuse)
{
    for (int refusal = 1; refusal <= 20; ++refusal) passedOver();
    const auto asked = 2 * FullDisk::refusalTakes; // for a run of pages, then for the one
    disk.now += 20 * asked - 1ns;
    EXPECT_FALSE(isAsked());
    disk.now += 1ns;
    EXPECT_TRUE(isAsked());
    EXPECT_FALSE(isAsked());

    disk.full = false;
    EXPECT_EQ(3026, errorOf([&] { file_.reserve(1); })) << "not asked, it can't tell";
    disk.now += 20 * asked;
    EXPECT_EQ(0, errorOf([&] { file_.reserve(1); })) << "room that is there again is found";
}

TEST_F(PageFileOnAFullDisk, OnceThereWasRoomItIsAskedEachTimeAnew)
{
    for (int refusal = 1; refusal <= 20; ++refusal) passedOver();
    disk.full = false;
    disk.now += 1s;
    ASSERT_EQ(0, errorOf([&] { file_.reserve(1); }));
    for (int page = 0; page < 64; ++page) file_.take(); // all of the run that was granted
    disk.full = true;
    for (int refusal = 1; refusal <= 8; ++refusal) EXPECT_EQ(0, passedOver());
}

} // namespace
