#include "backends/jet/row_filler.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <random>

namespace {

namespace fs = std::filesystem;

bool runs(const std::string& command)
{
    return std::system(("{ " + command + "; } >/dev/null 2>&1").c_str()) == 0;
}

/// A small file system of its own kind, while it lives; `there` is false where this machine lets
/// nobody mount one.
class SmallDisk {
public:
    /// `command` mounts it on the folder `$disk`, and may keep an image in `$image`.
    explicit SmallDisk(const std::string& command)
    {
        fs::create_directory(path());
        there_ = runs("disk='" + path().string() + "'; image='" +
                      (scratch_.folder() / "image").string() + "'; " + command);
    }
    ~SmallDisk()
    {
        if (there_) runs("umount '" + path().string() + "'");
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool there() const { return there_; }
    fs::path path() const { return scratch_.folder() / "disk"; }

    /// An empty database on it.
    fs::path database() const
    {
        const fs::path copy = path() / "trace.mdb";
        fs::copy_file(scratch_.path(), copy);
        return copy;
    }

    /// Fills what is left but for some bytes, with what can't be compressed.
    void fillBut(std::uintmax_t bytes) const
    {
        std::mt19937 random(4711);
        std::ofstream filler(fillerPath(), std::ios::binary);
        std::string block(64 * 1024, '\0');
        while (filler.good() && fs::space(path()).available > bytes) {
            for (char& byte : block) byte = static_cast<char>(random());
            filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush();
        }
    }
    fs::path fillerPath() const { return path() / "filler"; }

private:
    ScratchDatabase scratch_;
    bool there_ = false;
};

/// Adds rows until the disk is full, twice, and again when there is room: every row that was
/// updated is in the file, and no other.
void fillUp(const SmallDisk& disk)
{
    const fs::path path = disk.database();
    std::size_t stored = 0;
    {
        auto engine = machineEngine();
        const auto database = engine.openDatabase(path.string());
        const auto traces = database->openRecordset("tblTraces");
        while (stored < 3000) addNumberedRow(*traces, stored++);
        runs("sync -f '" + path.string() + "'"); // each changed page needs a new place from now on
        disk.fillBut(1'000'000);
        int error = 0;
        while (stored < 100'000 &&
               (error = errorOf([&] { addNumberedRow(*traces, stored); })) == 0) {
            ++stored;
            if (stored % 500 == 0) runs("sync -f '" + path.string() + "'");
        }
        EXPECT_EQ(3026, error);
        EXPECT_EQ(stored, countNumberedRows(path));
        EXPECT_EQ(3026, errorOf([&] { traces->update(); })) << "the row is still being added";
        EXPECT_EQ(stored, countNumberedRows(path));
        fs::remove(disk.fillerPath());
        runs("sync -f '" + path.string() + "'");
        traces->update();
        addNumberedRow(*traces, stored + 1);
        EXPECT_EQ(stored + 2, countNumberedRows(path));
    }
    EXPECT_EQ(stored + 2, countNumberedRows(path));
    EXPECT_TRUE(isHarmless(problemsOf(path))) << problemsOf(path);
}

TEST(FullDisk, InMemoryIsAnErrorOfTheUpdateAndLosesNoRow)
{
    const SmallDisk disk("mount -t tmpfs -o size=16m none \"$disk\"");
    if (!disk.there()) GTEST_SKIP() << "this machine lets nobody mount a file system";
    fillUp(disk);
}

TEST(FullDisk, ThatWritesEachChangeToANewPlaceIsAnErrorOfTheUpdateAndLosesNoRow)
{
    const SmallDisk disk("truncate -s 128M \"$image\" && mkfs.btrfs -q -M \"$image\" && "
                         "mount -o loop \"$image\" \"$disk\"");
    if (!disk.there()) GTEST_SKIP() << "this machine lets nobody mount btrfs";
    fillUp(disk);
}

} // namespace
