#pragma once

#include "platform/trace_database.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

/// A stored row: the texts of its values by column name, without those that are Null.
using StoredTraceRow = std::map<std::string, std::string>;

/// What every TraceDatabaseEngine promises. A `Machine` has a default constructor,
/// `TraceDatabaseEngine& engine()`, `std::string path()`, a database with the tables of a gather,
/// `std::string missingPath()`, `std::string damagedPath()`, a file that is none, and
/// `rows(table)`: what is stored, each row the texts of its values in UTF-8 by column name, without
/// those that are Null.
template <typename Machine>
class TraceDatabaseContract : public testing::Test {
protected:
    std::unique_ptr<TraceDatabase> open() { return machine.engine().openDatabase(machine.path()); }

    Machine machine;
};

TYPED_TEST_SUITE_P(TraceDatabaseContract);

TYPED_TEST_P(TraceDatabaseContract, AnUpdatedRowIsStoredAtOnce)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    recordset->field("Date").setText("10/8/2005 15:23:07:120");
    recordset->field("TraceNumber").setNumber(-7);
    recordset->field("Trace").setText("a trace");
    recordset->update();

    EXPECT_EQ((std::vector<StoredTraceRow>{{{"Date", "10/8/2005 15:23:07:120"},
                                            {"TraceNumber", "-7"},
                                            {"Trace", "a trace"},
                                            {"Highlight", "0"}}}),
              this->machine.rows("tblTraces"));
}

TYPED_TEST_P(TraceDatabaseContract, AMissingFileRaises3024)
{
    EXPECT_EQ(3024,
              errorOf([&] { this->machine.engine().openDatabase(this->machine.missingPath()); }));
}

TYPED_TEST_P(TraceDatabaseContract, AFileThatIsNoDatabaseRaises3343)
{
    EXPECT_EQ(3343,
              errorOf([&] { this->machine.engine().openDatabase(this->machine.damagedPath()); }));
}

TYPED_TEST_P(TraceDatabaseContract, TextsAreStoredAsTheLettersThatTheyMean)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblUniqueFilters");
    EXPECT_EQ("caf\u00E9 \u20AC", recordset->utf8Of("caf\xE9 \x80"));
    recordset->addNew();
    recordset->field("Process").setText("caf\xE9 \x80");
    recordset->field("Source").setUtf8("caf\u00E9 \u20AC");
    recordset->field("Component").setUtf8("caf\xE9");
    recordset->update();
    EXPECT_EQ((std::vector<StoredTraceRow>{{{"Process", "caf\u00E9 \u20AC"},
                                            {"Source", "caf\u00E9 \u20AC"},
                                            {"Component", "caf\uFFFD"}}}),
              this->machine.rows("tblUniqueFilters"));
}

TYPED_TEST_P(TraceDatabaseContract, ALongTextThatDoesNotFitRaises3163AndLeavesTheValueThatWasThere)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    TraceField& trace = recordset->field("Trace");
    trace.setText("first");
    const std::string tooLong(8'388'608, 'x');
    EXPECT_EQ(3163, errorOf([&] { trace.setText(tooLong); }));
    EXPECT_EQ(3163, errorOf([&] { trace.setUtf8(tooLong); }));
    EXPECT_EQ("first", trace.text());
}

TYPED_TEST_P(TraceDatabaseContract, ADatabaseHasOneWriterAtATime)
{
    auto database = this->open();
    EXPECT_EQ(3045, errorOf([&] { this->open(); }));
    database.reset();
    EXPECT_EQ(0, errorOf([&] { this->open(); }));
}

TYPED_TEST_P(TraceDatabaseContract, TablesAndFieldsAreFoundWithoutRegardToCase)
{
    const auto database = this->open();
    EXPECT_EQ(3078, errorOf([&] { database->openRecordset("tblNone"); }));
    const auto recordset = database->openRecordset("TBLtraces");
    EXPECT_EQ(3265, errorOf([&] { recordset->field("None"); }));
    EXPECT_EQ(&recordset->field("qrvIndex"), &recordset->field("QRVINDEX"));
}

TYPED_TEST_P(TraceDatabaseContract, NothingIsSetReadOrUpdatedWithoutARow)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    TraceField& field = recordset->field("Port");
    for (const char* moment : {"before the first row", "after a row was stored"}) {
        SCOPED_TRACE(moment);
        EXPECT_EQ(3020, errorOf([&] { field.setText("7"); }));
        EXPECT_EQ(3020, errorOf([&] { field.setUtf8("7"); }));
        EXPECT_EQ(3020, errorOf([&] { field.setNumber(7); }));
        EXPECT_EQ(3021, errorOf([&] { field.text(); }));
        EXPECT_EQ(3021, errorOf([&] { field.isNull(); }));
        EXPECT_EQ(3020, errorOf([&] { recordset->update(); }));
        recordset->addNew();
        recordset->update();
    }
    EXPECT_EQ(2u, this->machine.rows("tblTraces").size());
}

TYPED_TEST_P(TraceDatabaseContract, AFieldReadsBackAsItWasSet)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    TraceField& text = recordset->field("qrvIndex");
    TraceField& number = recordset->field("TraceLevel");
    EXPECT_TRUE(text.isNull());
    EXPECT_EQ("", text.text());
    text.setText("a_\xE9_13_");
    number.setNumber(-99);
    EXPECT_EQ("a_\xE9_13_", text.text());
    EXPECT_EQ("-99", number.text());
    text.setText("");
    EXPECT_EQ("", text.text());
    EXPECT_FALSE(text.isNull());
}

TYPED_TEST_P(TraceDatabaseContract, AFieldTakesWhatItsColumnHolds)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    struct Case {
        const char* because;
        const char* field;
        std::string text;
        int error;
    };
    const Case cases[] = {
        {"a text of the column's length fits", "Source", std::string(255, 'x'), 0},
        {"and so does the head of a longer one", "Source", std::string(256, 'x'), 0},
        {"a long text column has no such limit", "Trace", std::string(70'000, 'x'), 0},
        {"Source takes no zero-length text", "Source", "", 3315},
        {"nor does Trace", "Trace", "", 3315},
        {"Port does", "Port", "", 0},
        {"a number may be spelled", "TraceNumber", " -12 ", 0},
        {"a word is no number", "TraceNumber", "twelve", 3421},
        {"nor is nothing", "TraceNumber", "", 3421},
        {"nor more than 32 bits", "TraceNumber", "2147483648", 3421},
        {"the least of 16 bits fits", "TraceLevel", "-32768", 0},
        {"one less does not", "TraceLevel", "-32769", 3421},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.error, errorOf([&] { recordset->field(c.field).setText(c.text); }));
    }
    EXPECT_EQ(3421, errorOf([&] { recordset->field("Highlight").setNumber(32'768); }));
}

TYPED_TEST_P(TraceDatabaseContract, AFailedAssignmentLeavesTheValueThatWasThere)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    TraceField& source = recordset->field("Source");
    EXPECT_EQ(3315, errorOf([&] { source.setText(""); }));
    EXPECT_TRUE(source.isNull());
    source.setText("5012");
    EXPECT_EQ(3315, errorOf([&] { source.setText(""); }));
    EXPECT_EQ("5012", source.text());
    EXPECT_EQ(3315, errorOf([&] { source.setUtf8(""); }));
    EXPECT_EQ("5012", source.text());
}

TYPED_TEST_P(TraceDatabaseContract, ATextLongerThanItsColumnIsCutAtAWholeCharacter)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblUniqueFilters");
    const auto times = [](std::size_t count, const std::string& text) {
        std::string all;
        for (std::size_t done = 0; done < count; ++done) all += text;
        return all;
    };
    const std::string zhe = "\u0416";
    const std::string note = "\U0001D11E"; // two characters of a column
    struct Case {
        const char* because;
        std::string text;
        std::string stored;
    };
    const Case cases[] = {
        {"as many as it holds", times(50, "x"), times(50, "x")},
        {"one more", times(50, "x") + "y", times(50, "x")},
        {"characters of two bytes", times(51, zhe), times(50, zhe)},
        {"a pair that ends with the column", times(26, note), times(25, note)},
        {"a pair that would be cut in half", "x" + times(30, note), "x" + times(24, note)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        recordset->addNew();
        recordset->field("TraceLevel").setUtf8(c.text);
        EXPECT_EQ(c.stored, recordset->field("TraceLevel").text());
        recordset->update();
        EXPECT_EQ(c.stored, this->machine.rows("tblUniqueFilters").back().at("TraceLevel"));
    }
    recordset->addNew();
    TraceField& level = recordset->field("TraceLevel");
    level.setText(times(49, "x") + "\xE9\xE9");
    EXPECT_EQ(times(49, "x") + "\xE9", level.text()) << "as it was set, in the code page";
}

TYPED_TEST_P(TraceDatabaseContract, AnEmptySourceOrTraceIsLeftNull)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    recordset->addNew();
    EXPECT_EQ(3315, errorOf([&] { recordset->field("Source").setText(""); }));
    recordset->field("Component").setText("");
    recordset->update();
    EXPECT_EQ((std::vector<StoredTraceRow>{{{"Component", ""}, {"Highlight", "0"}}}),
              this->machine.rows("tblTraces"));
}

TYPED_TEST_P(TraceDatabaseContract, ATextColumnTakesANumberInDecimalForm)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblUniqueFilters");
    recordset->addNew();
    recordset->field("TraceLevel").setNumber(-99);
    EXPECT_EQ("-99", recordset->field("TraceLevel").text());
    recordset->update();
    EXPECT_EQ((std::vector<StoredTraceRow>{{{"TraceLevel", "-99"}}}),
              this->machine.rows("tblUniqueFilters"));
}

TYPED_TEST_P(TraceDatabaseContract, ARowThatIsBegunAgainForgetsItsValues)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblUniqueFilters");
    recordset->addNew();
    recordset->field("Process").setText("first");
    recordset->addNew();
    EXPECT_TRUE(recordset->field("Process").isNull());
    recordset->field("Source").setText("second");
    recordset->update();
    EXPECT_EQ((std::vector<StoredTraceRow>{{{"Source", "second"}}}),
              this->machine.rows("tblUniqueFilters"));
}

TYPED_TEST_P(TraceDatabaseContract, AClosedRecordsetRaises3420)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    TraceField& field = recordset->field("Port");
    recordset->addNew();
    recordset->close();
    EXPECT_EQ(3420, errorOf([&] { field.setText("7"); }));
    EXPECT_EQ(3420, errorOf([&] { field.text(); }));
    EXPECT_EQ(3420, errorOf([&] { field.isNull(); }));
    EXPECT_EQ(3420, errorOf([&] { recordset->field("Port"); }));
    EXPECT_EQ(3420, errorOf([&] { recordset->addNew(); }));
    EXPECT_EQ(3420, errorOf([&] { recordset->update(); }));
    EXPECT_EQ(3420, errorOf([&] { recordset->close(); }));
    EXPECT_TRUE(this->machine.rows("tblTraces").empty());
}

TYPED_TEST_P(TraceDatabaseContract, AClosedDatabaseClosesItsRecordsets)
{
    const auto database = this->open();
    const auto recordset = database->openRecordset("tblTraces");
    TraceField& field = recordset->field("Port");
    recordset->addNew();
    database->close();
    EXPECT_EQ(3420, errorOf([&] { field.setText("7"); }));
    EXPECT_EQ(3420, errorOf([&] { recordset->update(); }));
    EXPECT_EQ(3420, errorOf([&] { recordset->close(); }));
    EXPECT_EQ(3420, errorOf([&] { database->openRecordset("tblTraces"); }));
    EXPECT_EQ(3420, errorOf([&] { database->close(); }));
}

TYPED_TEST_P(TraceDatabaseContract, ARecordsetStaysClosedWhenItsDatabaseIsOpenedAnew)
{
    auto first = this->open();
    const auto recordset = first->openRecordset("tblTraces");
    recordset->addNew();
    first.reset();
    EXPECT_EQ(3420, errorOf([&] { recordset->update(); })) << "let go without a close";
    auto second = this->open();
    EXPECT_EQ(3420, errorOf([&] { recordset->addNew(); }));
    second->close();
    const auto third = this->open();
    second.reset();
    third->openRecordset("tblTraces")->addNew();
    EXPECT_TRUE(this->machine.rows("tblTraces").empty());
}

TYPED_TEST_P(TraceDatabaseContract, ThreeTablesTakeRowsInTurn)
{
    const auto database = this->open();
    const auto traces = database->openRecordset("tblTraces");
    const auto macros = database->openRecordset("tblMacroTraces");
    const auto filters = database->openRecordset("tblUniqueFilters");
    for (int round = 0; round < 3; ++round) {
        for (auto* recordset : {traces.get(), macros.get(), filters.get()}) recordset->addNew();
        traces->field("TraceNumber").setNumber(round);
        macros->field("Name").setUtf8("HT" + std::to_string(round) + ".xml");
        filters->field("Process").setText(std::to_string(round));
        for (auto* recordset : {filters.get(), macros.get(), traces.get()}) recordset->update();
    }
    EXPECT_EQ("2", this->machine.rows("tblTraces").at(2).at("TraceNumber"));
    EXPECT_EQ("HT1.xml", this->machine.rows("tblMacroTraces").at(1).at("Name"));
    EXPECT_EQ("0", this->machine.rows("tblUniqueFilters").at(0).at("Process"));
}

REGISTER_TYPED_TEST_SUITE_P(
    TraceDatabaseContract, AnUpdatedRowIsStoredAtOnce, AMissingFileRaises3024,
    AFileThatIsNoDatabaseRaises3343, TextsAreStoredAsTheLettersThatTheyMean,
    ALongTextThatDoesNotFitRaises3163AndLeavesTheValueThatWasThere, ADatabaseHasOneWriterAtATime,
    TablesAndFieldsAreFoundWithoutRegardToCase, NothingIsSetReadOrUpdatedWithoutARow,
    AFieldReadsBackAsItWasSet, AFieldTakesWhatItsColumnHolds,
    AFailedAssignmentLeavesTheValueThatWasThere, ATextLongerThanItsColumnIsCutAtAWholeCharacter,
    AnEmptySourceOrTraceIsLeftNull, ATextColumnTakesANumberInDecimalForm,
    ARowThatIsBegunAgainForgetsItsValues, AClosedRecordsetRaises3420,
    AClosedDatabaseClosesItsRecordsets, ARecordsetStaysClosedWhenItsDatabaseIsOpenedAnew,
    ThreeTablesTakeRowsInTurn);
