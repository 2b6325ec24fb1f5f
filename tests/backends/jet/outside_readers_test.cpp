#include "backends/jet/outside_readers.h"

#include "backends/jet/row_filler.h"
#include "support/places.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

/// A shape of database that every reader is to find whole.
struct Shape {
    const char* name;
    std::function<void(TraceDatabase&)> fill;
};

void addMacro(TraceRecordset& macros, const std::string& name, const std::string& data)
{
    macros.addNew();
    macros.field("Name").setUtf8(name);
    macros.field("Data").setUtf8(data);
    macros.update();
}

std::string repeated(const std::string& piece, std::size_t count)
{
    std::string text;
    for (std::size_t at = 0; at < count; ++at) text += piece;
    return text;
}

void addMemos(TraceDatabase& database, const std::string& character,
              std::initializer_list<std::size_t> lengths)
{
    const auto macros = database.openRecordset("tblMacroTraces");
    for (const std::size_t length : lengths)
        addMacro(*macros, std::to_string(length), repeated(character, length));
}

void addNumberedRows(TraceDatabase& database, std::size_t count)
{
    const auto traces = database.openRecordset("tblTraces");
    for (std::size_t row = 0; row < count; ++row) addNumberedRow(*traces, row);
}

void addNumbers(TraceDatabase& database)
{
    const auto traces = database.openRecordset("tblTraces");
    for (const int number : {0, -1, -2'147'483'647 - 1, 2'147'483'647}) {
        traces->addNew();
        traces->field("TraceNumber").setNumber(number);
        traces->field("TraceLevel").setNumber(number % 32'769);
        traces->update();
    }
}

void addTextsAtTheLimit(TraceDatabase& database)
{
    const auto filters = database.openRecordset("tblUniqueFilters");
    for (const std::string piece : {"x", "\xC3\xAB", "\xD0\x96", "\xE4\xB8\xAD"}) {
        filters->addNew();
        for (const char* column : {"qrvIndex", "Process", "Source", "Component"})
            filters->field(column).setUtf8(repeated(piece, 255));
        filters->field("TraceLevel").setUtf8(repeated(piece, 50));
        filters->update();
    }
}

void addForeignTexts(TraceDatabase& database)
{
    const auto filters = database.openRecordset("tblUniqueFilters");
    for (const char* text : {"\xD0\x96\xD0\xB8\xD0\xB7\xD0\xBD\xD1\x8C", "\xE4\xB8\xAD\xE6\x96\x87",
                             "5 \xE2\x82\xAC", "Zo\xC3\xAB", "a", "ab"}) {
        filters->addNew();
        filters->field("Process").setUtf8(text);
        filters->update();
    }
}

/// Rows until the table's newest page is as full as can be.
void fillAPageToItsEnd(TraceDatabase& database)
{
    const auto filters = database.openRecordset("tblUniqueFilters");
    // A row of 5 variable columns takes 17 bytes beside its texts, and its slot 2: seven rows and
    // their texts make the 4,082 bytes that a page has.
    const std::size_t rowBytes[] = {600, 600, 600, 600, 600, 600, 468};
    for (const std::size_t bytes : rowBytes) {
        const std::size_t textBytes = bytes - 17;
        filters->addNew();
        filters->field("Process").setUtf8(repeated("x", textBytes / 3 - 2));
        filters->field("Source").setUtf8(repeated("y", textBytes / 3 - 2));
        filters->field("Component").setUtf8(repeated("z", textBytes - textBytes / 3 * 2 - 2));
        filters->update();
    }
}

const Shape shapes[] = {
    {"no rows", [](TraceDatabase&) {}},
    {"one row", [](TraceDatabase& database) { addNumberedRows(database, 1); }},
    {"rows of all forms", [](TraceDatabase& database) { addNumberedRows(database, 800); }},
    {"numbers", addNumbers},
    {"memos at every threshold",
     [](TraceDatabase& database) {
         addMemos(database, "x",
                  {0,    1,    2,    3,    31,   32,   33,   60,   64,   65,    1023,
                   1024, 1025, 1901, 1902, 1903, 2038, 2039, 3804, 4000, 4070,  4071,
                   4072, 4076, 4093, 4094, 4095, 6108, 6109, 8144, 8145, 10180, 65'000});
     }},
    {"memos in other scripts",
     [](TraceDatabase& database) {
         addMemos(database, "\xD0\x96", {1, 32, 33, 1024, 1902, 1903, 2036, 2037, 4000, 65'000});
         addMemos(database, "\xC3\xAB", {1, 3, 32, 33, 1024, 1025, 1902, 1903, 4094, 4095});
     }},
    {"foreign texts", addForeignTexts},
    {"texts at the column's limit", addTextsAtTheLimit},
    {"a page full to its end", fillAPageToItsEnd},
};

std::string schemaOf(const ScratchDatabase& scratch)
{
    return outputOf("mdb-schema '" + scratch.path().string() + "'");
}

TEST(OutsideReaders, FindEveryShapeOfDatabaseWhole)
{
    const std::string schema = schemaOf(ScratchDatabase());
    for (const auto& shape : shapes) {
        SCOPED_TRACE(shape.name);
        ScratchDatabase scratch;
        auto engine = machineEngine();
        shape.fill(*engine.openDatabase(scratch.path().string()));
        EXPECT_EQ("", problemsOf(scratch.path()));
        EXPECT_EQ("tblTraces\ntblMacroTraces\ntblUniqueFilters\n",
                  outputOf("mdb-tables -1 '" + scratch.path().string() + "'"));
        EXPECT_EQ(schema, schemaOf(scratch));
        for (const char* table : {"tblTraces", "tblMacroTraces", "tblUniqueFilters"}) {
            SCOPED_TRACE(table);
            const auto rows = scratch.rows(table);
            const auto filled = withoutEmptyTexts(rows);
            EXPECT_EQ("", firstDifference(rows, nodeRows(scratch.path(), table)));
            EXPECT_EQ("", firstDifference(filled, exportedRows(scratch.path(), table)));
            EXPECT_EQ("", firstDifference(filled, jsonRows(scratch.path(), table)));
            EXPECT_EQ("\n" + std::to_string(rows.size()) + "\n",
                      outputOf("echo 'select count(*) from " + std::string(table) +
                               "' | mdb-sql -HFP '" + scratch.path().string() + "'"));
        }
    }
}

TEST(OutsideReaders, FindAMemoOfAMillionCharacters)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const std::string text = repeated("0123456789", 100'000);
    addMacro(*engine.openDatabase(scratch.path().string())->openRecordset("tblMacroTraces"), "long",
             text);
    const std::vector<TextRow> expected = {{{"Data", text}, {"Name", "long"}}};
    EXPECT_EQ("", firstDifference(expected, scratch.rows("tblMacroTraces")));
    EXPECT_EQ("", firstDifference(expected, nodeRows(scratch.path(), "tblMacroTraces")));
    // mdbtools shows the head of a text that is longer than its buffer.
    for (const auto& rows : {exportedRows(scratch.path(), "tblMacroTraces"),
                             jsonRows(scratch.path(), "tblMacroTraces")}) {
        ASSERT_EQ(1U, rows.size());
        const std::string& head = rows[0].at("Data");
        EXPECT_GT(head.size(), 65'536U);
        EXPECT_EQ(text.substr(0, head.size()), head);
    }
}

TEST(OutsideReaders, FindACharacterBeyondTheFirst65536)
{
    // mdb-reader alone: mdbtools takes each half of the pair for a character it does not know.
    ScratchDatabase scratch;
    auto engine = machineEngine();
    addMacro(*engine.openDatabase(scratch.path().string())->openRecordset("tblMacroTraces"),
             "\xF0\x9F\x98\x80", "a \xF0\x9F\x98\x80 in a text");
    EXPECT_EQ("", firstDifference(scratch.rows("tblMacroTraces"),
                                  nodeRows(scratch.path(), "tblMacroTraces")));
    EXPECT_EQ("\xF0\x9F\x98\x80", scratch.rows("tblMacroTraces").at(0).at("Name"));
}

TEST(OutsideReaders, FindTheTablesAndTheirColumns)
{
    ScratchDatabase scratch;
    EXPECT_EQ("tblTraces\ntblMacroTraces\ntblUniqueFilters\n",
              outputOf("mdb-tables -1 '" + scratch.path().string() + "'"));
    const std::vector<std::vector<std::string>> tables = {
        {"tblTraces", "Date", "Process", "Source", "TraceNumber", "Component", "TraceLevel", "Port",
         "Trace", "CallId", "Highlight", "qrvIndex"},
        {"tblMacroTraces", "Name", "Data"},
        {"tblUniqueFilters", "qrvIndex", "Process", "Source", "Component", "TraceLevel"}};
    EXPECT_EQ(tables, nodeTables(scratch.path()));

    const std::string schema = outputOf("mdb-schema '" + scratch.path().string() + "'");
    for (const char* line :
         {"[Date]\t\t\tText (255)", "[TraceNumber]\t\t\tLong Integer", "[TraceLevel]\t\t\tInteger",
          "[Trace]\t\t\tMemo/Hyperlink", "[TraceLevel]\t\t\tText (50)"})
        EXPECT_NE(std::string::npos, schema.find(line)) << line << "\n" << schema;
}

TEST(OutsideReaders, FindTheRulesOfTheColumns)
{
    ScratchDatabase scratch;
    const std::string properties =
        outputOf("mdb-prop '" + scratch.path().string() + "' tblTraces LvProp");
    const std::size_t source = properties.find("name: Source");
    const std::size_t trace = properties.find("name: Trace\n");
    ASSERT_NE(std::string::npos, source) << properties;
    ASSERT_NE(std::string::npos, trace) << properties;
    for (const std::size_t at : {source, trace})
        EXPECT_EQ(properties.find("AllowZeroLength: no", at),
                  properties.find("AllowZeroLength", at));
    EXPECT_NE(std::string::npos, properties.find("DefaultValue: 0"));
}

TEST(OutsideReaders, CountAndSelectTheRowsOfATableOfMany)
{
    constexpr std::size_t rows = 200'000;
    ScratchDatabase scratch;
    auto engine = machineEngine();
    addNumberedRows(*engine.openDatabase(scratch.path().string()), rows);

    const std::string path = "'" + scratch.path().string() + "'";
    const std::string count = std::to_string(rows) + "\n";
    EXPECT_EQ(count, outputOf("mdb-count " + path + " tblTraces"));
    EXPECT_EQ("\n" + count,
              outputOf("echo 'select count(*) from tblTraces' | mdb-sql -HFP " + path));
    EXPECT_EQ("\nRoCsMgr\t31\n", outputOf("echo 'select Process, TraceLevel from tblTraces where "
                                          "TraceNumber = -69' | mdb-sql -HFP " +
                                          path));
    EXPECT_EQ(count, outputOf("mdb-export -H -Q -R $(printf '\\036') " + path +
                              " tblTraces | tr -dc '\\036' | wc -c"));
    EXPECT_EQ(count, outputOf("mdb-json " + path + " tblTraces | wc -l"));
    EXPECT_EQ(count, outputOf(std::string("node ") + checkout::readers + "/dump_table.mjs " + path +
                              " tblTraces | tr -dc '\\036' | wc -c"));
    EXPECT_EQ(rows, scratch.rows("tblTraces").size());
}

} // namespace
