#include "backends/jet/outside_readers.h"
#include "backends/jet/row_filler.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <cstdint>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A number that a child process changes and that is still there when it was killed.
class SharedCount {
public:
    SharedCount()
        : page_(mmap(nullptr, sizeof(Count), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1,
                     0)),
          count_(*new (page_) Count(0))
    {}
    ~SharedCount() { munmap(page_, sizeof(Count)); }
    SharedCount(const SharedCount&) = delete;
    SharedCount& operator=(const SharedCount&) = delete;

    void set(std::uint64_t value) { count_ = value; }
    std::uint64_t get() const { return count_; }

private:
    using Count = std::atomic<std::uint64_t>;

    void* page_;
    Count& count_;
};

/// Adds numbered rows from `first` on until it is killed; `updated` is how many are in the file.
[[noreturn]] void addRowsForever(const std::filesystem::path& path, std::uint64_t first,
                                 SharedCount& updated)
{
    auto engine = machineEngine();
    const auto database = engine.openDatabase(path.string());
    const auto traces = database->openRecordset("tblTraces");
    for (std::uint64_t row = first;; ++row) {
        addNumberedRow(*traces, row);
        updated.set(row + 1);
    }
}

/// Kills a process that adds rows, as soon as it has added some and a little more time has passed.
void killWhileItAddsRows(const std::filesystem::path& path, std::uint64_t first,
                         SharedCount& updated, unsigned microseconds)
{
    updated.set(first);
    const pid_t child = fork();
    if (child == 0) addRowsForever(path, first, updated);
    while (updated.get() == first) usleep(50);
    usleep(microseconds);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
}

TEST(Kill, LeavesAnExactPrefixOfTheRowsAndEveryUpdatedOne)
{
    SharedCount updated;
    std::mt19937 random(4711);
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        ScratchDatabase scratch;
        killWhileItAddsRows(scratch.path(), 0, updated, random() % 10'000);
        const std::uint64_t found = countNumberedRows(scratch.path());
        EXPECT_GE(found, updated.get()) << "a row that was updated is in the file";
        EXPECT_LE(found, updated.get() + 1);
        EXPECT_TRUE(isHarmless(problemsOf(scratch.path()))) << problemsOf(scratch.path());
        EXPECT_EQ(0, pagesWithoutType(scratch.path()));
        if (HasFailure()) return;
    }
}

TEST(Kill, TheNextWriterGoesOnBehindTheRowsThatAreThere)
{
    SharedCount updated;
    std::mt19937 random(815);
    ScratchDatabase scratch;
    for (int round = 0; round < 8; ++round) {
        SCOPED_TRACE(round);
        const std::uint64_t before = countNumberedRows(scratch.path());
        killWhileItAddsRows(scratch.path(), before, updated, random() % 3'000);
        EXPECT_GE(countNumberedRows(scratch.path()), updated.get());
        EXPECT_EQ(0, pagesWithoutType(scratch.path()));
        if (HasFailure()) return;
    }
    auto engine = machineEngine();
    const std::uint64_t rows = countNumberedRows(scratch.path());
    const auto database = engine.openDatabase(scratch.path().string());
    const auto traces = database->openRecordset("tblTraces");
    addNumberedRow(*traces, rows);
    database->close();
    EXPECT_EQ(rows + 1, countNumberedRows(scratch.path()));
    EXPECT_EQ("", problemsOf(scratch.path())) << "opening again put the row count right";
}

TEST(Kill, EveryOutsideReaderFindsThePrefix)
{
    SharedCount updated;
    std::mt19937 random(42);
    for (int round = 0; round < 6; ++round) {
        SCOPED_TRACE(round);
        ScratchDatabase scratch;
        killWhileItAddsRows(scratch.path(), 0, updated, random() % 4'000);
        const auto rows = rowsOf(scratch.path(), "tblTraces");
        ASSERT_EQ(rows.size(), countNumberedRows(scratch.path()));
        EXPECT_EQ("", firstDifference(rows, nodeRows(scratch.path(), "tblTraces")));
        EXPECT_EQ("", firstDifference(withoutEmptyTexts(rows),
                                      exportedRows(scratch.path(), "tblTraces")));
    }
}

} // namespace
