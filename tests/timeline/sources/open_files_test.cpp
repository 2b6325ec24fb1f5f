#include "timeline/sources/open_files.h"

#include "support/temporary_folder.h"
#include "system/file_bytes.h"
#include "system/machine_path.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>

namespace timeline {
namespace {

std::string bytesOf(KeptFile& file)
{
    const KeptFile::Use use(file);
    std::string bytes(100, ' ');
    bytes.resize(readAt(use.descriptor(), bytes.data(), bytes.size(), 0));
    return bytes;
}

std::size_t openNow()
{
    const auto folder = std::filesystem::directory_iterator("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
}

TEST(OpenFiles, ReadsManyThroughFewThatAreOpen)
{
    const TemporaryFolder folder;
    const auto files = std::make_shared<OpenFiles>(3);
    std::deque<KeptFile> kept;
    const bool counts = !machineHasDrives() && std::filesystem::exists("/proc/self/fd");
    const std::size_t before = counts ? openNow() : 0;
    for (int number = 0; number < 50; ++number)
        kept.emplace_back(files, folder.write(std::to_string(number), std::to_string(number)));
    for (const int round : {1, 2}) {
        SCOPED_TRACE(round);
        for (int number = 0; number < 50; ++number)
            EXPECT_EQ(std::to_string(number), bytesOf(kept[static_cast<std::size_t>(number)]));
    }
    if (counts) {
        EXPECT_EQ(before + 3, openNow());
    }
    kept.clear();
    if (counts) {
        EXPECT_EQ(before, openNow());
    }
}

TEST(OpenFiles, KeepsThoseOpenThatAreUsed)
{
    const TemporaryFolder folder;
    const auto files = std::make_shared<OpenFiles>(1);
    KeptFile first(files, folder.write("first", "first"));
    KeptFile second(files, folder.write("second", "second"));
    const KeptFile::Use use(first);
    EXPECT_EQ("second", bytesOf(second));
    EXPECT_TRUE(use.descriptor().isOpen());
    EXPECT_EQ("first", bytesOf(first));
}

TEST(OpenFiles, DoesNotTakeAnotherFileForTheOneThatWasRead)
{
    const TemporaryFolder folder;
    const auto files = std::make_shared<OpenFiles>(1);
    KeptFile first(files, folder.write("first", "first"));
    KeptFile second(files, folder.write("second", "second"));
    std::filesystem::rename(folder / "first", folder / "moved");
    folder.write("first", "another");
    EXPECT_EQ(runTimeErrors::deviceIo, errorOf([&] { bytesOf(first); }));
    std::filesystem::remove(folder / "first");
    EXPECT_EQ(runTimeErrors::fileNotFound, errorOf([&] { bytesOf(first); }));
    EXPECT_EQ("second", bytesOf(second));
}

TEST(OpenFiles, RefusesWhatIsNotThere)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runTimeErrors::fileNotFound,
              errorOf([&] { KeptFile(std::make_shared<OpenFiles>(1), folder / "missing"); }));
}

} // namespace
} // namespace timeline
