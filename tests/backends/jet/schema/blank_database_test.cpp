#include "backends/jet/scratch_database.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

/// The checksum of zlib and PNG.
std::uint32_t crc32(std::string_view bytes)
{
    std::uint32_t crc = 0xFFFF'FFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) crc = (crc & 1) != 0 ? crc >> 1 ^ 0xEDB8'8320 : crc >> 1;
    }
    return crc ^ 0xFFFF'FFFF;
}

std::vector<std::uint32_t> pageSums(const std::string& image)
{
    std::vector<std::uint32_t> sums;
    for (std::size_t at = 0; at < image.size(); at += 4096)
        sums.push_back(crc32(std::string_view(image).substr(at, 4096)));
    return sums;
}

TEST(BlankDatabase, IsTheFileThatOtherWritersOfTheFormatAgreedOnByteForByte)
{
    // Sums of the pages that independent generators made of the same three tables, the catalog's
    // rows (page 14) and properties (page 22) by one that says of every column whether it is
    // required.
    const std::vector<std::uint32_t> expected = {
        0xEC6A9F1D, 0x63CB95BA, 0x25B78BAF, 0x31CF1EF1, 0xCC462A2A, 0xBC028C0A,
        0x6C825B0F, 0x753E3368, 0x91CDA393, 0x72E7AE23, 0x40EF71E4, 0x5313D8FA,
        0x5313D8FA, 0x5313D8FA, 0x77C6C92F, 0x48525808, 0x945009E0, 0x39AFB42B,
        0xB470EA8B, 0x39AFB42B, 0x4EB5B6FF, 0x882DDDF1, 0x1FA8E089};
    EXPECT_EQ(expected, pageSums(jet::blankDatabase(traceSchema())));
}

TEST(BlankDatabase, WithoutATableIsTheFileThatTheEngineMakes)
{
    jet::Schema schema;
    schema.created = traceSchema().created;
    const std::vector<std::uint32_t> expected = {0xEC6A9F1D, 0xF627D4C0, 0xBB9CC2EC, 0x5A5DA9A2,
                                                 0xCC462A2A, 0xBC028C0A, 0xD2088285, 0xEAA9FDE4,
                                                 0xF4C8CFC5, 0xDD6344AA, 0x40EF71E4, 0x5313D8FA,
                                                 0x5313D8FA, 0x5313D8FA, 0x87FE2DF6, 0x28901C43};
    EXPECT_EQ(expected, pageSums(jet::blankDatabase(schema)));
}

TEST(BlankDatabase, HoldsTheTablesOfAGatherWithTheirColumnsInOrder)
{
    const std::string image = jet::blankDatabase(traceSchema());
    const jet::Reader reader(image);
    std::vector<std::vector<std::string>> tables;
    for (const auto& table : reader.tables()) {
        auto& names = tables.emplace_back(1, table.name);
        for (const auto& column : table.columns) names.push_back(column.name);
        EXPECT_EQ(0u, table.rowCount);
        EXPECT_FALSE(reader.rows(table).next());
    }
    const std::vector<std::vector<std::string>> expected = {
        {"tblTraces", "Date", "Process", "Source", "TraceNumber", "Component", "TraceLevel", "Port",
         "Trace", "CallId", "Highlight", "qrvIndex"},
        {"tblMacroTraces", "Name", "Data"},
        {"tblUniqueFilters", "qrvIndex", "Process", "Source", "Component", "TraceLevel"}};
    EXPECT_EQ(expected, tables);
    EXPECT_TRUE(reader.problems().empty());
}

TEST(BlankDatabase, SaysWhichColumnsTakeNoZeroLengthTextAndWhichHaveADefault)
{
    const std::string image = jet::blankDatabase(traceSchema());
    const jet::Reader reader(image);
    std::vector<std::string> strict;
    std::vector<std::string> defaults;
    for (const auto& table : reader.tables()) {
        for (const auto& column : table.columns) {
            if (!column.allowZeroLength) strict.push_back(column.name);
            if (!column.defaultValue.empty())
                defaults.push_back(column.name + "=" + column.defaultValue);
        }
    }
    EXPECT_EQ((std::vector<std::string>{"Source", "Trace"}), strict);
    EXPECT_EQ((std::vector<std::string>{"Highlight=0"}), defaults);
}

TEST(BlankDatabase, SaysOfEveryColumnWhetherItIsRequired)
{
    const std::string image = jet::blankDatabase(jet::parseSchema("table tblOne\n"
                                                                  "column Name text 50 required\n"
                                                                  "column Note memo\n"
                                                                  "column Count long required\n"));
    const jet::Reader reader(image);
    std::vector<bool> required;
    for (const auto& column : reader.tables()[0].columns) required.push_back(column.required);
    EXPECT_EQ((std::vector<bool>{true, false, true}), required);
    const std::string name("R\0e\0q\0u\0i\0r\0e\0d\0", 16);
    EXPECT_NE(std::string::npos, image.find(name));
}

TEST(BlankDatabase, KeepsPropertiesOfUpTo64BytesInTheCatalogsRow)
{
    // Beside its name, a number's properties take 49 bytes: 64 are reached within the 8th letter.
    struct Case {
        const char* column;
        std::size_t pages;
    };
    for (const Case& c : {Case{"Count12", 18}, Case{"Count123", 19}}) {
        SCOPED_TRACE(c.column);
        const std::string image = jet::blankDatabase(
            jet::parseSchema("table tblOne\ncolumn " + std::string(c.column) + " long required\n"));
        EXPECT_EQ(c.pages, image.size() / 4096);
        EXPECT_TRUE(jet::Reader(image).tables()[0].columns[0].required);
    }
}

TEST(BlankDatabase, RefusesASchemaThatIsTooLarge)
{
    struct Case {
        const char* because;
        std::size_t tables;
        std::size_t columns;
    };
    const Case cases[] = {{"a table's definition has one page", 1, 120},
                          {"the catalog has one page", 60, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::string text;
        for (std::size_t table = 0; table < c.tables; ++table) {
            text += "table tbl" + std::to_string(table) + "\n";
            for (std::size_t column = 0; column < c.columns; ++column)
                text += "column Column" + std::to_string(column) + " long\n";
        }
        EXPECT_EQ(5, errorOf([&] { jet::blankDatabase(jet::parseSchema(text)); }));
    }
}

TEST(BlankDatabase, RefusesATableWhosePropertiesTakeMoreThanARow)
{
    const auto error = [](int columns) {
        std::string text = "table tblOne\n";
        for (int column = 0; column < columns; ++column)
            text += "column C" + std::to_string(100 + column) + " text 9\n";
        return errorOf([&] { jet::blankDatabase(jet::parseSchema(text)); });
    };
    // 60 bytes, and 38 for each column; its definition takes 35 of a page.
    EXPECT_EQ(0, error(98));
    EXPECT_EQ(5, error(99));
}

} // namespace
