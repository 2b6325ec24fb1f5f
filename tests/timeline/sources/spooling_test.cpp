#include "timeline/sources/spooling.h"

#include "support/error_of.h"
#include "system/file_bytes.h"

#include <gmock/gmock.h>

namespace timeline {
namespace {

std::string bytesOf(const FileDescriptor& file)
{
    std::string bytes(100, '\0');
    bytes.resize(readAt(file, bytes.data(), bytes.size(), 0));
    return bytes;
}

TEST(SpooledFile, HoldsWhatIsAppended)
{
    Spooling spooling;
    SpooledFile file(spooling);
    file.append("one ");
    file.append("two");
    EXPECT_EQ(7u, file.size());
    EXPECT_EQ("one two", bytesOf(file.take()));
}

TEST(SpooledFile, TakesNoMoreThanAllMayTakeTogether)
{
    Spooling spooling({3 << 20, 10, 0});
    const std::string megabyte(1 << 20, 'x');
    SpooledFile one(spooling);
    one.append(megabyte);
    one.append(megabyte);
    SpooledFile other(spooling);
    other.append(megabyte);
    EXPECT_EQ("all that is unpacked at a time is 3 MB at the most",
              errorTextOf([&] { other.append("x"); }));
    EXPECT_EQ(megabyte.size(), other.size()) << "and what was there stays";
}

TEST(SpooledFile, GivesItsRoomBackUnlessItIsTaken)
{
    Spooling spooling({10, 1, 0});
    {
        SpooledFile{spooling}.append("0123456789");
    }
    SpooledFile kept(spooling);
    kept.append("0123456789");
    const FileDescriptor file = kept.take();
    EXPECT_EQ(7, errorOf([&] { const SpooledFile none(spooling); }));
}

TEST(SpooledFile, AreBoundedInNumber)
{
    Spooling spooling({10, 1, 0});
    const SpooledFile one(spooling);
    EXPECT_EQ("more than 1 files would have to be unpacked",
              errorTextOf([&] { const SpooledFile none(spooling); }));
}

TEST(SpooledFile, LeavesRoomOnTheDisk)
{
    Spooling spooling({1 << 20, 10, std::uint64_t{1} << 62});
    EXPECT_EQ("the disk of the temporary files has no more than 4398046511104 MB left",
              errorTextOf([&] { const SpooledFile none(spooling); }));
}

} // namespace
} // namespace timeline
