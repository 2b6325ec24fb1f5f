#include "backends/jet/scratch_database.h"
#include "platform/trace_database_contract.h"

#include <fstream>

namespace {

class JetMachine {
public:
    TraceDatabaseEngine& engine() { return engine_; }
    std::string path() const { return scratch_.path().string(); }
    std::string missingPath() const { return path() + ".none"; }
    std::string damagedPath() const
    {
        const std::string damaged = path() + ".damaged";
        std::ofstream(damaged) << "no database";
        return damaged;
    }
    std::vector<TextRow> rows(const std::string& table) const { return scratch_.rows(table); }

private:
    ScratchDatabase scratch_;
    jet::JetEngine engine_ = machineEngine();
};

INSTANTIATE_TYPED_TEST_SUITE_P(Jet, TraceDatabaseContract, JetMachine);

void writeFile(const std::filesystem::path& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

TEST(JetEngine, RefusesWhatIsNoDatabaseAndLeavesItAsItIs)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const std::string sound = bytesOfFile(scratch.path());
    std::string encrypted = sound;
    encrypted[0x3E] ^= 1;
    for (const std::string& bytes : {std::string(), std::string("text"), std::string(5000, '\0'),
                                     std::string(9000, 'x'), sound.substr(0, 4096), encrypted}) {
        writeFile(scratch.path(), bytes);
        EXPECT_EQ(3343, errorOf([&] { engine.openDatabase(scratch.path().string()); }));
        EXPECT_EQ(bytes, bytesOfFile(scratch.path()));
    }
    EXPECT_EQ(3051, errorOf([&] { engine.openDatabase(scratch.folder().string()); }));
}

TEST(JetEngine, FollowsNoLinkInThePlaceOfItsFile)
{
    ScratchDatabase scratch;
    const std::filesystem::path moved = scratch.folder() / "moved.mdb";
    std::filesystem::rename(scratch.path(), moved);
    std::error_code failed;
    std::filesystem::create_symlink(moved, scratch.path(), failed);
    if (failed == std::errc::function_not_supported) GTEST_SKIP() << "no links can be made here";
    ASSERT_FALSE(failed) << failed.message();
    auto engine = machineEngine();
    EXPECT_EQ(3051, errorOf([&] { engine.openDatabase(scratch.path().string()); }));
    engine.openDatabase(moved.string());
}

TEST(JetEngine, FindsAFileWhereItsPathLeads)
{
    ScratchDatabase scratch;
    jet::JetEngine engine([&](const std::string& path) {
        EXPECT_EQ("C:\\Temp\\a.mdb", path);
        return scratch.path().string();
    });
    engine.openDatabase("C:\\Temp\\a.mdb");
}

TEST(JetEngine, CutsOffAPartOfAPageAtTheEnd)
{
    ScratchDatabase scratch;
    const std::string sound = bytesOfFile(scratch.path());
    writeFile(scratch.path(), sound + std::string(1000, 'x'));
    auto engine = machineEngine();
    engine.openDatabase(scratch.path().string());
    EXPECT_EQ(sound, bytesOfFile(scratch.path()));
}

TEST(JetEngine, OpeningAndClosingChangesNothing)
{
    ScratchDatabase scratch;
    const std::string before = bytesOfFile(scratch.path());
    auto engine = machineEngine();
    {
        const auto database = engine.openDatabase(scratch.path().string());
        database->openRecordset("tblTraces")->addNew();
    }
    EXPECT_EQ(before, bytesOfFile(scratch.path()));
}

TEST(JetEngine, DecodesTextsFromTheServersCodePage)
{
    ScratchDatabase scratch;
    CodePage::Table table{};
    for (std::size_t byte = 0; byte < 128; ++byte) table[byte] = static_cast<char16_t>(byte);
    table[0xC6] = u'\u0416';
    struct Case {
        CodePage codePage;
        std::string bytes;
        const char* stored;
    };
    const Case cases[] = {{windows1252(), "\x93quoted\x94 \xE9", "\u201Cquoted\u201D \u00E9"},
                          {windows1252(), std::string("a\0b", 3), "a\uFFFDb"},
                          {CodePage(table), "\xC6!", "\u0416!"}};
    for (const auto& c : cases) {
        jet::JetEngine engine([](const std::string& path) { return path; }, c.codePage);
        const auto database = engine.openDatabase(scratch.path().string());
        const auto filters = database->openRecordset("tblUniqueFilters");
        filters->addNew();
        filters->field("Process").setText(c.bytes);
        EXPECT_EQ(c.bytes, filters->field("Process").text());
        filters->update();
        EXPECT_EQ(c.stored, scratch.rows("tblUniqueFilters").back().at("Process"));
    }
}

TEST(JetEngine, ATableWithAColumnOfAnotherTypeIsReadOnly)
{
    ScratchDatabase scratch;
    std::string image = bytesOfFile(scratch.path());
    image[18 * 4096 + 0x3F] = 9; // the first column of tblMacroTraces becomes a binary one
    writeFile(scratch.path(), image);
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    EXPECT_EQ(3027, errorOf([&] { database->openRecordset("tblMacroTraces"); }));
    EXPECT_EQ(0, errorOf([&] { database->openRecordset("tblTraces"); }));
}

TEST(JetEngine, ARowBeginsWithTheDefaultsThatAreValues)
{
    ScratchDatabase scratch(jet::parseSchema("table tblOne\n"
                                             "column Word text 3 default \"new\"\n"
                                             "column Long text 3 default \"longer\"\n"
                                             "column Code text 9 default 42\n"
                                             "column Count long default -7\n"
                                             "column Level integer default 99999\n"
                                             "column Moment text 9 default Now()\n"));
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto rows = database->openRecordset("tblOne");
    rows->addNew();
    rows->update();
    const TextRow expected = {{"Word", "new"}, {"Code", "42"}, {"Count", "-7"}};
    EXPECT_EQ(std::vector<TextRow>{expected}, scratch.rows("tblOne"));
}

TEST(JetEngine, ARowWithoutAValueForARequiredColumnRaises3314AndIsStillBeingAdded)
{
    ScratchDatabase scratch(jet::parseSchema("table tblOne\n"
                                             "column Name text 9 required\n"
                                             "column Level integer required default 7\n"
                                             "column Note memo\n"));
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto rows = database->openRecordset("tblOne");
    rows->addNew();
    EXPECT_EQ(3314, errorOf([&] { rows->update(); }));
    EXPECT_TRUE(scratch.rows("tblOne").empty());
    rows->field("Name").setText("x");
    rows->update();
    const TextRow expected = {{"Name", "x"}, {"Level", "7"}};
    EXPECT_EQ(std::vector<TextRow>{expected}, scratch.rows("tblOne"));
}

TEST(JetEngine, WhatACutWouldSpoilIsRefused)
{
    ScratchDatabase scratch(
        jet::parseSchema("table tblOne\ncolumn Code text 3\ncolumn Note memo\n"));
    auto engine = machineEngine();
    const auto database = engine.openDatabase(scratch.path().string());
    const auto rows = database->openRecordset("tblOne");
    rows->addNew();
    EXPECT_EQ(3163, errorOf([&] { rows->field("Code").setNumber(1000); })) << "no other number";
    EXPECT_EQ(0, errorOf([&] { rows->field("Code").setNumber(100); }));
    const std::string document(8'388'608, 'x');
    EXPECT_EQ(3163, errorOf([&] { rows->field("Note").setText(document); })) << "a whole document";
    EXPECT_EQ(3163, errorOf([&] { rows->field("Note").setUtf8(document); }));
    EXPECT_TRUE(rows->field("Note").isNull());
    EXPECT_EQ("100", rows->field("Code").text());
}

} // namespace
