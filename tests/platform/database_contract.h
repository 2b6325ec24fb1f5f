#pragma once

#include "platform/database.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// What every DatabaseConnection promises, with its recordsets and commands.
///
/// A `Machine` has a default constructor that gives a server with
///  - the view "vw_LoggerDiagnosticGrid" of the columns "Name", "ObjectId", "Flags", "DefaultFlags"
///    with the rows ("B", "id-B", -2147483648, 0), ("A", "id-A", 5, 1), ("O'Hara", "id-O", Null,
///    7);
///  - the view "vw_Nothing" of the column "Name" without rows;
///  - the procedure "csp_LoggerDiagnosticGridModify" of the parameters "@Name", "@ObjectId" and
///    "@Flags", which sets the flags of an object id and refuses to set 13: "unlucky flags";
///
/// `DatabaseConnection& connection()`, closed at first; `loseServer()`, which also breaks an open
/// connection, and `bringServerBack()`; and what another program does to the view's rows:
/// `setFlags(name, flags)`, `addComponent(name)`, `removeComponent(name)`.
template <typename Machine>
class DatabaseContract : public testing::Test {
protected:
    using Rows = std::unique_ptr<DatabaseRecordset>;

    DatabaseConnection& connection() { return machine.connection(); }
    void open() { connection().open("Data Source=(local)", "", ""); }

    Rows rowsOf(const std::string& query, CursorKind cursor = CursorKind::forwardOnly)
    {
        return connection().openRecordset(query, cursor, LockKind::optimistic);
    }

    Rows keyset(const std::string& columns = "Name, Flags")
    {
        return rowsOf("SELECT " + columns + " FROM vw_LoggerDiagnosticGrid ORDER BY Name",
                      CursorKind::keyset);
    }

    /// The column of the first row that a query gives; Empty when it gives none.
    Value first(const std::string& query, const std::string& column = "Flags")
    {
        const Rows rows = rowsOf(query);
        return rows->atEnd() ? Value(Empty{}) : rows->field(column);
    }

    Value flagsOf(const std::string& name)
    {
        return first("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = '" + name + "'");
    }

    int errorOfQuery(const std::string& query)
    {
        return errorOf([&] { rowsOf(query); });
    }

    /// A command whose procedure is set and whose parameters are known.
    std::unique_ptr<DatabaseCommand> modifyCommand()
    {
        auto command = connection().createCommand();
        command->useActiveConnection();
        command->setProcedure("csp_LoggerDiagnosticGridModify");
        command->refreshParameters();
        return command;
    }

    Machine machine;
};

TYPED_TEST_SUITE_P(DatabaseContract);

TYPED_TEST_P(DatabaseContract, AConnectionIsClosedUntilItIsOpened)
{
    EXPECT_EQ(0, this->connection().state());
    EXPECT_EQ(0, this->connection().errorCount());
    EXPECT_EQ(3709, this->errorOfQuery("SELECT Name FROM vw_LoggerDiagnosticGrid"));
    this->open();
    EXPECT_EQ(1, this->connection().state());
    EXPECT_EQ(0, this->connection().errorCount());
}

TYPED_TEST_P(DatabaseContract, OpeningTwiceRaises3705AndLeavesTheConnectionOpen)
{
    this->open();
    EXPECT_EQ(3705, errorOf([&] { this->open(); }));
    EXPECT_EQ(1, this->connection().state());
    EXPECT_EQ(Value(5), this->flagsOf("A"));
}

TYPED_TEST_P(DatabaseContract, AServerThatIsNotThereLeavesTheConnectionClosedWithAnError)
{
    this->machine.loseServer();
    EXPECT_EQ(-2147467259, errorOf([&] { this->open(); }));
    EXPECT_EQ(0, this->connection().state());
    EXPECT_EQ(1, this->connection().errorCount());
    this->machine.bringServerBack();
    this->open();
    EXPECT_EQ(0, this->connection().errorCount()) << "of the latest opening alone";
}

TYPED_TEST_P(DatabaseContract, AConnectionThatBrokeIsClosedAndMayBeOpenedAgain)
{
    this->open();
    const auto command = this->modifyCommand();
    this->machine.loseServer();
    EXPECT_EQ(0, this->connection().state());
    EXPECT_EQ(3709, this->errorOfQuery("SELECT Name FROM vw_LoggerDiagnosticGrid"));
    EXPECT_EQ(3709, errorOf([&] { command->execute(); }));
    this->machine.bringServerBack();
    this->open();
    EXPECT_EQ(Value(5), this->flagsOf("A"));
}

TYPED_TEST_P(DatabaseContract, AFieldIsFoundWithoutRegardToCase)
{
    this->open();
    const auto rows = this->rowsOf("SELECT Name FROM vw_LoggerDiagnosticGrid WHERE Name = 'A'");
    EXPECT_EQ(Value(std::string("A")), rows->field("Name"));
    EXPECT_EQ(Value(std::string("A")), rows->field("NAME"));
}

TYPED_TEST_P(DatabaseContract, AFieldThatTheQueryLacksRaises3265WhereverTheCursorStands)
{
    this->open();
    for (const CursorKind cursor : {CursorKind::forwardOnly, CursorKind::keyset}) {
        const auto rows =
            this->rowsOf("SELECT Name FROM vw_LoggerDiagnosticGrid WHERE Name = 'A'", cursor);
        EXPECT_EQ(3265, errorOf([&] { rows->field("Flags"); })) << "though the view has it";
        rows->moveNext();
        EXPECT_EQ(3265, errorOf([&] { rows->field("Flags"); })) << "at the end";
        const auto none = this->rowsOf("SELECT Name FROM vw_Nothing", cursor);
        EXPECT_EQ(3265, errorOf([&] { none->field("Flags"); })) << "without a row";
    }
}

TYPED_TEST_P(DatabaseContract, AFieldAtTheEndRaises3021)
{
    this->open();
    for (const CursorKind cursor : {CursorKind::forwardOnly, CursorKind::keyset}) {
        const auto rows =
            this->rowsOf("SELECT Name FROM vw_LoggerDiagnosticGrid WHERE Name = 'A'", cursor);
        EXPECT_FALSE(rows->atEnd());
        rows->moveNext();
        EXPECT_TRUE(rows->atEnd());
        EXPECT_EQ(3021, errorOf([&] { rows->field("Name"); }));
        EXPECT_EQ(3021, errorOf([&] { rows->moveNext(); }));
    }
}

TYPED_TEST_P(DatabaseContract, AQueryWithoutRowsIsAtItsEnd)
{
    this->open();
    for (const CursorKind cursor : {CursorKind::forwardOnly, CursorKind::keyset}) {
        const auto rows = this->rowsOf("SELECT Name FROM vw_Nothing", cursor);
        EXPECT_TRUE(rows->atEnd());
        EXPECT_EQ(3021, errorOf([&] { rows->field("Name"); }));
        EXPECT_EQ(3021, errorOf([&] { rows->moveNext(); }));
    }
}

TYPED_TEST_P(DatabaseContract, ValuesKeepTheirKind)
{
    this->open();
    EXPECT_EQ(Value(5), this->flagsOf("A"));
    EXPECT_EQ(Value(std::int32_t{-2147483647 - 1}), this->flagsOf("B")) << "bit 31 is a sign";
    EXPECT_EQ(Value(Null{}), this->flagsOf("O''Hara"));
    EXPECT_EQ(
        Value(std::string("id-A")),
        this->first("SELECT ObjectId FROM vw_LoggerDiagnosticGrid WHERE Name = 'A'", "ObjectId"));
}

TYPED_TEST_P(DatabaseContract, AColumnIsCalledWhatTheQueryCallsIt)
{
    this->open();
    EXPECT_EQ(Value(1), this->first("SELECT DefaultFlags As Flags FROM vw_LoggerDiagnosticGrid "
                                    "WHERE Name = 'A'"));
}

TYPED_TEST_P(DatabaseContract, ViewsAndColumnsOfAQueryMatchWithoutRegardToCase)
{
    this->open();
    EXPECT_EQ(Value(5), this->first("SELECT FLAGS FROM VW_LOGGERDIAGNOSTICGRID WHERE NAME = 'A'"));
}

TYPED_TEST_P(DatabaseContract, TextsOfAQueryMatchExactly)
{
    this->open();
    EXPECT_EQ(Value(Empty{}), this->flagsOf("a"));
    EXPECT_EQ(Value(Empty{}), this->flagsOf("A "));
}

TYPED_TEST_P(DatabaseContract, RowsComeInTheOrderAskedFor)
{
    this->open();
    std::vector<std::string> names;
    const auto rows = this->rowsOf("SELECT Name FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    for (; !rows->atEnd(); rows->moveNext()) names.push_back(valueAsText(rows->field("Name")));
    EXPECT_EQ((std::vector<std::string>{"A", "B", "O'Hara"}), names);
}

TYPED_TEST_P(DatabaseContract, AQuoteInATextIsDoubledOrTheQueryIsRefused)
{
    this->open();
    const std::string query = "SELECT ObjectId FROM vw_LoggerDiagnosticGrid WHERE Name = 'O";
    EXPECT_EQ(Value(std::string("id-O")), this->first(query + "''Hara'", "ObjectId"));
    EXPECT_EQ(-2147217900, this->errorOfQuery(query + "'Hara'"));
}

TYPED_TEST_P(DatabaseContract, AQueryThatIsNoneIsRefused)
{
    this->open();
    for (const char* query : {"", "no query", "SELECT FROM vw_LoggerDiagnosticGrid",
                              "SELECT None FROM vw_LoggerDiagnosticGrid",
                              "SELECT Name FROM vw_LoggerDiagnosticGrid WHERE None = 'A'",
                              "SELECT Name FROM vw_LoggerDiagnosticGrid ORDER BY None"})
        EXPECT_EQ(-2147217900, this->errorOfQuery(query)) << query;
}

TYPED_TEST_P(DatabaseContract, AViewThatIsNotThereHasANumberOfItsOwn)
{
    this->open();
    EXPECT_EQ(-2147217865, this->errorOfQuery("SELECT Name FROM vw_None"));
    EXPECT_EQ(1, this->connection().state());
}

TYPED_TEST_P(DatabaseContract, AForwardOnlyCursorCannotCountItsRows)
{
    this->open();
    EXPECT_EQ(-1, this->rowsOf("SELECT Name FROM vw_LoggerDiagnosticGrid")->rowCount());
    EXPECT_EQ(-1, this->rowsOf("SELECT Name FROM vw_Nothing")->rowCount());
}

TYPED_TEST_P(DatabaseContract, AKeysetHoldsTheRowsThatThereWereAtItsOpening)
{
    this->open();
    const auto rows = this->keyset();
    this->machine.addComponent("Z");
    this->machine.removeComponent("B");
    EXPECT_EQ(3, rows->rowCount());
    std::vector<std::string> names;
    for (; !rows->atEnd(); rows->moveNext()) names.push_back(valueAsText(rows->field("Name")));
    EXPECT_EQ((std::vector<std::string>{"A", "O'Hara"}), names) << "the one that went is passed";
    EXPECT_EQ(3, rows->rowCount());
    EXPECT_EQ(0, this->rowsOf("SELECT Name FROM vw_Nothing", CursorKind::keyset)->rowCount());
}

TYPED_TEST_P(DatabaseContract, AKeysetShowsEachRowAsItIsWhenTheCursorComesToIt)
{
    this->open();
    const auto rows = this->keyset();
    this->machine.setFlags("B", 64);
    EXPECT_EQ(Value(5), rows->field("Flags"));
    rows->moveNext();
    EXPECT_EQ(Value(64), rows->field("Flags"));
}

TYPED_TEST_P(DatabaseContract, ItsRowsMayBeWrittenToWhileAKeysetIsWalked)
{
    this->open();
    const auto rows = this->keyset("Name, ObjectId, Flags");
    int seen = 0;
    for (; !rows->atEnd(); rows->moveNext(), ++seen) {
        const auto command = this->modifyCommand();
        command->assign("@ObjectId", rows->field("ObjectId"));
        command->assign("@Flags", 64);
        command->execute();
    }
    EXPECT_EQ(3, seen);
    for (const char* name : {"A", "B", "O''Hara"})
        EXPECT_EQ(Value(64), this->flagsOf(name)) << name;
}

TYPED_TEST_P(DatabaseContract, AKeysetShowsRowsThatNothingTellsApartAsTheyWere)
{
    this->open();
    const auto rows = this->keyset("Flags");
    this->machine.setFlags("B", 64);
    this->machine.removeComponent("O'Hara");
    rows->moveNext();
    EXPECT_EQ(Value(std::int32_t{-2147483647 - 1}), rows->field("Flags"));
    rows->moveNext();
    EXPECT_EQ(Value(Null{}), rows->field("Flags"));
}

TYPED_TEST_P(DatabaseContract, AClosedRecordsetRaises3704)
{
    this->open();
    for (const CursorKind cursor : {CursorKind::forwardOnly, CursorKind::keyset}) {
        const auto rows = this->rowsOf("SELECT Name FROM vw_LoggerDiagnosticGrid", cursor);
        rows->close();
        EXPECT_EQ(3704, errorOf([&] { rows->atEnd(); }));
        EXPECT_EQ(3704, errorOf([&] { rows->field("Name"); }));
        EXPECT_EQ(3704, errorOf([&] { rows->field("None"); }));
        EXPECT_EQ(3704, errorOf([&] { rows->moveNext(); }));
        EXPECT_EQ(3704, errorOf([&] { rows->rowCount(); }));
        EXPECT_EQ(3704, errorOf([&] { rows->close(); }));
    }
}

TYPED_TEST_P(DatabaseContract, ACommandOfAClosedConnectionCanBeMadeAndRaises3709)
{
    const auto command = this->connection().createCommand();
    ASSERT_NE(nullptr, command);
    EXPECT_EQ(3709, errorOf([&] { command->useActiveConnection(); }));
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    EXPECT_EQ(3709, errorOf([&] { command->refreshParameters(); }));
    EXPECT_EQ(3709, errorOf([&] { command->execute(); }));
}

TYPED_TEST_P(DatabaseContract, ACommandWritesWhatWasAssignedInWhateverCase)
{
    this->open();
    const auto command = this->modifyCommand();
    command->assign("@ObjectId", std::string("id-A"));
    command->assign("@FLAGS", std::int32_t{-2147483647 - 1});
    command->execute();
    EXPECT_EQ(Value(std::int32_t{-2147483647 - 1}), this->flagsOf("A"));
}

TYPED_TEST_P(DatabaseContract, WhatIsNotAssignedIsNull)
{
    this->open();
    const auto command = this->modifyCommand();
    command->assign("@ObjectId", std::string("id-A"));
    command->execute();
    EXPECT_EQ(Value(Null{}), this->flagsOf("A"));
}

TYPED_TEST_P(DatabaseContract, AProcedureIsFoundWithoutRegardToCase)
{
    this->open();
    const auto command = this->connection().createCommand();
    command->setProcedure("CSP_LOGGERDIAGNOSTICGRIDMODIFY");
    command->refreshParameters();
    command->assign("@ObjectId", std::string("id-A"));
    command->assign("@Flags", 6);
    command->execute();
    EXPECT_EQ(Value(6), this->flagsOf("A"));
}

TYPED_TEST_P(DatabaseContract, AParameterThatIsNotKnownRaises3265)
{
    this->open();
    const auto command = this->modifyCommand();
    EXPECT_EQ(3265, errorOf([&] { command->assign("@None", 1); }));
    EXPECT_EQ(3265, errorOf([&] { command->assign("Flags", 1); })) << "without its sign";
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    EXPECT_EQ(3265, errorOf([&] { command->assign("@Flags", 1); })) << "set up from the start";
}

TYPED_TEST_P(DatabaseContract, RefreshingDropsWhatWasAssigned)
{
    this->open();
    const auto command = this->modifyCommand();
    command->assign("@ObjectId", std::string("id-A"));
    command->assign("@Flags", 99);
    command->refreshParameters();
    command->assign("@ObjectId", std::string("id-A"));
    command->execute();
    EXPECT_EQ(Value(Null{}), this->flagsOf("A"));
}

TYPED_TEST_P(DatabaseContract, AProcedureThatIsNotThereIsRefusedAndHasNoParameters)
{
    this->open();
    const auto command = this->modifyCommand();
    command->setProcedure("csp_None");
    EXPECT_EQ(-2147217900, errorOf([&] { command->refreshParameters(); }));
    EXPECT_EQ(3265, errorOf([&] { command->assign("@Flags", 1); }));
    EXPECT_EQ(-2147217900, errorOf([&] { command->execute(); }));
    EXPECT_EQ(1, this->connection().state());
}

TYPED_TEST_P(DatabaseContract, ARefusalRaisesWhatTheServerSaysAndWritesNothing)
{
    this->open();
    const auto command = this->modifyCommand();
    command->assign("@ObjectId", std::string("id-A"));
    command->assign("@Flags", 13);
    EXPECT_NE(std::string::npos, errorTextOf([&] { command->execute(); }).find("unlucky flags"));
    EXPECT_EQ(Value(5), this->flagsOf("A"));
    command->assign("@Flags", 14);
    command->execute();
    EXPECT_EQ(Value(14), this->flagsOf("A"));
}

REGISTER_TYPED_TEST_SUITE_P(
    DatabaseContract, AConnectionIsClosedUntilItIsOpened,
    OpeningTwiceRaises3705AndLeavesTheConnectionOpen,
    AServerThatIsNotThereLeavesTheConnectionClosedWithAnError,
    AConnectionThatBrokeIsClosedAndMayBeOpenedAgain, AFieldIsFoundWithoutRegardToCase,
    AFieldThatTheQueryLacksRaises3265WhereverTheCursorStands, AFieldAtTheEndRaises3021,
    AQueryWithoutRowsIsAtItsEnd, ValuesKeepTheirKind, AColumnIsCalledWhatTheQueryCallsIt,
    ViewsAndColumnsOfAQueryMatchWithoutRegardToCase, TextsOfAQueryMatchExactly,
    RowsComeInTheOrderAskedFor, AQuoteInATextIsDoubledOrTheQueryIsRefused,
    AQueryThatIsNoneIsRefused, AViewThatIsNotThereHasANumberOfItsOwn,
    AForwardOnlyCursorCannotCountItsRows, AKeysetHoldsTheRowsThatThereWereAtItsOpening,
    AKeysetShowsEachRowAsItIsWhenTheCursorComesToIt, ItsRowsMayBeWrittenToWhileAKeysetIsWalked,
    AKeysetShowsRowsThatNothingTellsApartAsTheyWere, AClosedRecordsetRaises3704,
    ACommandOfAClosedConnectionCanBeMadeAndRaises3709, ACommandWritesWhatWasAssignedInWhateverCase,
    WhatIsNotAssignedIsNull, AProcedureIsFoundWithoutRegardToCase,
    AParameterThatIsNotKnownRaises3265, RefreshingDropsWhatWasAssigned,
    AProcedureThatIsNotThereIsRefusedAndHasNoParameters,
    ARefusalRaisesWhatTheServerSaysAndWritesNothing);
