// A trace database that the disk or somebody else keeps from growing.
#include "backends/jet/row_filler.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace {

/// Lets files have so many bytes and no more, while the object lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::uint64_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

TEST(CutGrowth, WhereTheDiskHoldsNoMoreTheUpdateRaises3026AndTheRowsBeforeStay)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto traces = database->openRecordset("tblTraces");
    std::size_t stored = 0;
    {
        const FileSizeLimit limit(100 * 4096 + 100);
        while (errorOf([&] { addNumberedRow(*traces, stored); }) == 0) ++stored;
        EXPECT_EQ(3026, errorOf([&] { traces->update(); })) << "the row is still being added";
        EXPECT_EQ(stored, countNumberedRows(scratch.path()));
        EXPECT_LE(std::filesystem::file_size(scratch.path()), 100u * 4096);
    }
    EXPECT_GT(stored, 50u);
    traces->update();
    EXPECT_EQ(stored + 1, countNumberedRows(scratch.path()));
    database->close();
    EXPECT_EQ("", problemsOf(scratch.path()));
}

TEST(CutGrowth, ALongTextThatDoesNotFitLeavesTheFileAsItWas)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto macros = database->openRecordset("tblMacroTraces");
    macros->addNew();
    macros->field("Data").setText(std::string(1'000'000, 'x'));
    {
        const FileSizeLimit limit(100 * 4096);
        EXPECT_EQ(3026, errorOf([&] { macros->update(); }));
    }
    macros->field("Data").setText("short");
    macros->update();
    database->close();
    EXPECT_EQ(1u, scratch.rows("tblMacroTraces").size());
    EXPECT_EQ(24u, pagesOf(scratch.path())) << "one more, for the row";
}

TEST(CutGrowth, AFileThatIsCutWhileItIsWrittenRaises3343AndIsLeftAsItIs)
{
    for (const std::size_t pages : {1u, 17u, 30u}) {
        SCOPED_TRACE(pages);
        ScratchDatabase scratch;
        auto engine = machineEngine();
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        for (std::size_t row = 0; row < 200; ++row) addNumberedRow(*traces, row);
        std::filesystem::resize_file(scratch.path(), pages * 4096);
        for (int round = 0; round < 3; ++round)
            EXPECT_EQ(3343, errorOf([&] { addNumberedRow(*traces, 200); }));
        traces->close();
        database->close();
        EXPECT_EQ(pages, pagesOf(scratch.path())) << "not made longer with zeros";
    }
}

} // namespace
