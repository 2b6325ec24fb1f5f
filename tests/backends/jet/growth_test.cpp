#include "backends/jet/row_filler.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

TEST(Growth, EveryRowAndMapStaysRightPastTheEndOfTheInlineMaps)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    constexpr std::size_t rows = 4000;
    {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        for (std::size_t row = 0; row < rows; ++row) addNumberedRow(*traces, row);
    }
    EXPECT_GT(pagesOf(scratch.path()), 512u);
    EXPECT_EQ(rows, countNumberedRows(scratch.path()));
    EXPECT_EQ("", problemsOf(scratch.path()));
}

TEST(Growth, ReopeningGoesOnWhereTheFileEnded)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    std::size_t row = 0;
    for (const std::size_t last : {1u, 2u, 40u, 300u, 301u, 1500u, 2600u}) {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        while (row < last) addNumberedRow(*traces, row++);
        traces->close();
        database->close();
        ASSERT_EQ(last, countNumberedRows(scratch.path()));
        ASSERT_EQ("", problemsOf(scratch.path()));
    }
}

TEST(Growth, ReopeningFillsThePagesThatHaveRoom)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const auto before = pagesOf(scratch.path());
    for (int round = 0; round < 3; ++round) {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto macros = database->openRecordset("tblMacroTraces");
        macros->addNew();
        macros->field("Data").setText(std::string(200, 'x'));
        macros->update();
    }
    EXPECT_EQ(before + 2, pagesOf(scratch.path())) << "one of rows and one of their memos";
    EXPECT_EQ(3u, scratch.rows("tblMacroTraces").size());
    EXPECT_EQ("", problemsOf(scratch.path()));
}

TEST(Growth, ReopeningUsesThePagesOfZerosThatAKilledWriterLeft)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const auto before = pagesOf(scratch.path());
    std::filesystem::resize_file(scratch.path(), (before + 40) * 4096);
    {
        const auto database = engine.openDatabase(scratch.path().string());
        EXPECT_EQ(before, pagesOf(scratch.path()));
        addNumberedRow(*database->openRecordset("tblTraces"), 0);
        EXPECT_EQ(0, pagesWithoutType(scratch.path()));
    }
    EXPECT_EQ(before + 1, pagesOf(scratch.path()));
    EXPECT_EQ("", problemsOf(scratch.path()));
}

TEST(Growth, ReopeningUsesTheEmptyPagesThatAKilledWriterLeft)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const auto before = pagesOf(scratch.path());
    const auto copy = scratch.folder() / "killed.mdb";
    {
        const auto database = engine.openDatabase(scratch.path().string());
        addNumberedRow(*database->openRecordset("tblTraces"), 0);
        std::filesystem::copy_file(scratch.path(), copy);
    }
    EXPECT_GT(pagesOf(copy), before + 1);
    EXPECT_EQ(0, pagesWithoutType(copy));
    engine.openDatabase(copy.string());
    EXPECT_EQ(before + 1, pagesOf(copy));
    EXPECT_EQ(bytesOfFile(scratch.path()), bytesOfFile(copy));
}

TEST(Growth, OpeningATablePutsTheRowCountRight)
{
    constexpr std::size_t countOfTraces = 16 * 4096 + 0x10;
    ScratchDatabase scratch;
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        for (std::size_t row = 0; row < 3; ++row) addNumberedRow(*traces, row);
    }
    for (const char counted : {'\2', '\7'}) {
        std::fstream file(scratch.path(), std::ios::binary | std::ios::in | std::ios::out);
        file.seekp(countOfTraces).put(counted);
        file.close();
        ASSERT_NE("", problemsOf(scratch.path()));
        engine.openDatabase(scratch.path().string())->openRecordset("tblTraces");
        EXPECT_EQ("", problemsOf(scratch.path()));
    }
}

TEST(Growth, AFileHasNoPageMoreThanItsRowsNeed)
{
    ScratchDatabase scratch;
    const auto before = pagesOf(scratch.path());
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto filters = database->openRecordset("tblUniqueFilters");
    EXPECT_EQ(before, pagesOf(scratch.path()));
    filters->addNew();
    filters->update();
    database->close();
    EXPECT_EQ(before + 1, pagesOf(scratch.path()));
}

TEST(Growth, APageTakes255RowsAndNoMore)
{
    ScratchDatabase scratch(jet::parseSchema("table tblSmall\ncolumn Level integer\n"));
    auto engine = machineEngine();
    const auto before = pagesOf(scratch.path());
    const auto add = [&](int count) {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto rows = database->openRecordset("tblSmall");
        for (int row = 0; row < count; ++row) {
            rows->addNew();
            rows->field("Level").setNumber(row);
            rows->update();
        }
    };
    add(255);
    EXPECT_EQ(before + 1, pagesOf(scratch.path()));
    add(1);
    EXPECT_EQ(before + 2, pagesOf(scratch.path()));
    EXPECT_EQ(256u, scratch.rows("tblSmall").size());
    EXPECT_EQ("", problemsOf(scratch.path()));
}

TEST(Growth, AMemoOfUpTo32CharactersLiesInItsRow)
{
    for (const std::size_t characters : {32u, 33u}) {
        SCOPED_TRACE(characters);
        ScratchDatabase scratch;
        auto engine = machineEngine();
        const auto before = pagesOf(scratch.path());
        {
            const auto database = engine.openDatabase(scratch.path().string());
            const auto rows = database->openRecordset("tblMacroTraces");
            rows->addNew();
            rows->field("Data").setText(std::string(characters, 'x'));
            rows->update();
        }
        const auto longValuePages = characters > 32 ? 1u : 0u;
        EXPECT_EQ(before + 1 + longValuePages, pagesOf(scratch.path()));
    }
}

TEST(Growth, ARowLargerThanAPageHoldsRaises3047)
{
    std::string schema = "table tblWide\n";
    for (int column = 0; column < 9; ++column)
        schema += "column Text" + std::to_string(column) + " text 255\n";
    ScratchDatabase scratch(jet::parseSchema(schema));
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto rows = database->openRecordset("tblWide");
    const auto wide = [](int characters) {
        std::string text;
        for (int count = 0; count < characters; ++count) text += "\xD0\x96";
        return text;
    };
    rows->addNew();
    for (int column = 0; column < 9; ++column)
        rows->field("Text" + std::to_string(column)).setUtf8(wide(255));
    EXPECT_EQ(3047, errorOf([&] { rows->update(); }));

    // Beside its texts the row takes 26 bytes: 4,061 of them are one too many.
    rows->field("Text7").setUtf8(wide(230));
    rows->field("Text8").setText("abc");
    EXPECT_EQ(3047, errorOf([&] { rows->update(); }));
    rows->field("Text7").setUtf8(wide(231));
    rows->field("Text8").setText("a");
    rows->update();
    EXPECT_EQ(1u, scratch.rows("tblWide").size());
}

TEST(Growth, TheDatabaseStopsAtTheLastSafeSizeOfTheFormat)
{
    ScratchDatabase scratch;
    lengthenTo(scratch.path(), 524'200);
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto macros = database->openRecordset("tblMacroTraces");
    const std::string page(2000, 'x');
    std::size_t stored = 0;
    int error = 0;
    while (error == 0 && stored < 1000) {
        macros->addNew();
        macros->field("Name").setNumber(static_cast<std::int32_t>(stored));
        macros->field("Data").setText(page);
        error = errorOf([&] { macros->update(); });
        if (error == 0) ++stored;
    }
    EXPECT_EQ(3183, error);
    database->close();
    EXPECT_LE(std::filesystem::file_size(scratch.path()), 2'147'418'112u);
    EXPECT_GT(std::filesystem::file_size(scratch.path()), 2'147'418'112u - 4 * 4096);
    EXPECT_EQ(stored, scratch.rows("tblMacroTraces").size());
    EXPECT_EQ("", problemsOf(scratch.path()));
}

TEST(Growth, AFileOfMoreThanTheFormatsSizeIsRefused)
{
    ScratchDatabase scratch;
    std::filesystem::resize_file(scratch.path(), 524'289ull * 4096);
    auto engine = machineEngine();
    EXPECT_EQ(3343, errorOf([&] { engine.openDatabase(scratch.path().string()); }));
}

TEST(Growth, MapsOfMoreThanOneBitmapPageAreRight)
{
    ScratchDatabase scratch;
    lengthenTo(scratch.path(), 32'700);
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(scratch.path().string());
        const auto traces = database->openRecordset("tblTraces");
        for (std::size_t row = 0; row < 1500; ++row) addNumberedRow(*traces, row);
    }
    EXPECT_GT(pagesOf(scratch.path()), 32'800u);
    EXPECT_EQ(1500u, countNumberedRows(scratch.path()));
    EXPECT_EQ("", problemsOf(scratch.path()));
}

} // namespace
