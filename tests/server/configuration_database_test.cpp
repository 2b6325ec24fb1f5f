#include "server/configuration_database.h"

#include "support/test_tool.h"
#include "support/traced_pairs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using mdlOrvanDatabase::GetConfigurationSetting;
using mdlOrvanDatabase::openOrvanDB;
using mdlOrvanDatabase::SetConfigurationSetting;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace {

constexpr const char* localConnection =
    "Provider=SQLOLEDB.1;Integrated Security=SSPI;Persist Security Info=False;Initial "
    "Catalog=OrvanDirDb;Data Source=(local)\\kelmaorvan";
constexpr const char* unreachableText =
    "Err.Number = -2147467259 Err.Description = SQL Server does not exist or access denied.";

/// A connection whose opening goes as a test says, whatever it reports afterwards.
class OddConnection final : public DatabaseConnection {
public:
    int openError = 0;
    int reportedErrors = 0;
    bool failsOnState = false;
    bool failsOnCount = false;
    std::vector<std::string> given;

    int state() const override
    {
        if (failsOnState) throw RunTimeError(5);
        return 0;
    }
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override
    {
        given = {connectionString, user, password};
        if (openError != 0) throw RunTimeError(openError, "odd");
    }
    int errorCount() const override
    {
        if (failsOnCount) throw RunTimeError(5);
        return reportedErrors;
    }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string&, CursorKind,
                                                     LockKind) override
    {
        throw RunTimeError(runTimeErrors::connectionClosed);
    }
    std::unique_ptr<DatabaseCommand> createCommand() override { return nullptr; }
};

struct ConfigurationDatabase : testing::Test {
    TestTool tool;

    /// Whatever a test does, each traced routine that was entered was left.
    void TearDown() override { EXPECT_EQ(std::vector<std::string>{}, tracesOutOfPairs(tool)); }

    bool open() { return openOrvanDB(tool.context, tool.database, "(local)"); }

    Value read(const std::string& name = "System.X")
    {
        return GetConfigurationSetting(tool.context, name);
    }

    Value write(const Value& value, std::int32_t typeCode)
    {
        return SetConfigurationSetting(tool.context, "System.X", value, typeCode);
    }

    std::map<std::string, Value> parametersWritten()
    {
        return tool.database.calls().empty() ? std::map<std::string, Value>{}
                                             : tool.database.calls().back().parameters;
    }
};

} // namespace

TEST_F(ConfigurationDatabase, OpensTheServersInstanceWithoutUserAndPassword)
{
    OddConnection connection;

    EXPECT_TRUE(openOrvanDB(tool.context, connection, "(local)"));

    EXPECT_THAT(connection.given, ElementsAre(localConnection, "", ""));
    EXPECT_TRUE(tool.logged("Entering [mdlOrvanDatabase]openOrvanDB_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlOrvanDatabase]openOrvanDB_0"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ConfigurationDatabase, PutsTheServersNameBeforeTheInstance)
{
    OddConnection connection;

    openOrvanDB(tool.context, connection, "VOICE 01");

    EXPECT_THAT(connection.given.front(), testing::EndsWith(";Data Source=VOICE 01\\kelmaorvan"));
}

TEST_F(ConfigurationDatabase, LeavesAnOpenConnectionAloneAndGivesFalse)
{
    tool.database.opened();

    EXPECT_FALSE(open());

    EXPECT_THAT(tool.database.connectionStrings(), IsEmpty());
    EXPECT_EQ(1, tool.database.state());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ConfigurationDatabase, LogsTheConnectionStringOfAFailedOpening)
{
    tool.database.unreachable();

    EXPECT_FALSE(open());

    EXPECT_THAT(
        tool.failures("[mdlOrvanDatabase]openOrvanDB"),
        ElementsAre(unreachableText, std::string("Connection String Used = ") + localConnection));
    EXPECT_TRUE(tool.logged("Exiting [mdlOrvanDatabase]openOrvanDB_0")) << "the routine ran on";
}

TEST_F(ConfigurationDatabase, GoesByTheErrorsThatTheConnectionReportsOfAnOpening)
{
    struct Case {
        const char* because;
        int openError;
        int reported;
        bool opened;
    };
    const Case cases[] = {
        {"no error at all", 0, 0, true},
        {"an error that did not stop the opening", 0, 1, false},
        {"a failure that the connection does report", 5, 3, false},
        {"a failure of which the connection knows nothing", 5, 0, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        OddConnection connection;
        connection.openError = c.openError;
        connection.reportedErrors = c.reported;

        EXPECT_EQ(c.opened, openOrvanDB(tool.context, connection, "(local)"));
    }
}

TEST_F(ConfigurationDatabase, OpensNothingWhereTheStateOfTheConnectionCannotBeRead)
{
    OddConnection connection;
    connection.failsOnState = true;

    EXPECT_FALSE(openOrvanDB(tool.context, connection, "(local)"));

    EXPECT_THAT(connection.given, IsEmpty());
    EXPECT_TRUE(tool.logged("Exiting [mdlOrvanDatabase]openOrvanDB_0"));
}

TEST_F(ConfigurationDatabase, GivesFalseForAnOpeningWhoseErrorsCannotBeCounted)
{
    OddConnection connection;
    connection.failsOnCount = true;

    EXPECT_FALSE(openOrvanDB(tool.context, connection, "(local)"));

    EXPECT_THAT(connection.given, testing::SizeIs(3));
}

TEST_F(ConfigurationDatabase, RetriesAnOpeningInTheDevelopmentHostUntilItsErrorsAreCounted)
{
    tool.module.developmentHost = true;
    tool.database.unreachable();

    EXPECT_FALSE(open());

    EXPECT_EQ(11u, tool.database.connectionStrings().size());
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlOrvanDatabase]openOrvanDB",
              tool.failures().back());
}

TEST_F(ConfigurationDatabase, ReadsAValueInTheFormOfItsTypeCode)
{
    struct Case {
        const char* because;
        std::int32_t typeCode;
        Value stored;
        Value expected;
    };
    const Case cases[] = {
        {"no value is the empty text, not Null", 1, Null{}, std::string()},
        {"and so is a value that lies there all the same", 1, 7, std::string()},
        {"an integer", 3, -2147483647 - 1, -2147483647 - 1},
        {"an integer stored as text", 3, std::string("400"), 400},
        {"halves go to the even number", 3, 2.5, 2},
        {"a floating point number stays as it is", 4, 3.5, 3.5},
        {"also one that is a text", 4, std::string("3.5"), std::string("3.5")},
        {"a date stays", 7, Date{38633.5}, Date{38633.5}},
        {"a text stays", 8, std::string("C:\\Logs"), std::string("C:\\Logs")},
        {"a missing text stays Null", 8, Null{}, Null{}},
        {"a boolean", 11, 1, true},
        {"any number but 0 is true", 11, -1, true},
        {"0 is false", 11, 0, false},
        {"the words are booleans", 11, std::string("False"), false},
        {"a GUID stays", 88, Guid{"{0B8A}"}, Guid{"{0B8A}"}},
        {"2 is no type code", 2, 7, Null{}},
        {"5 is none", 5, 7.0, Null{}},
        {"0 is none", 0, 7, Null{}},
        {"a negative one is none", -3, 7, Null{}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool fresh;
        fresh.database.opened().withConfiguration("System.X", c.stored, c.typeCode);

        EXPECT_EQ(c.expected, GetConfigurationSetting(fresh.context, "System.X"));

        EXPECT_EQ(0, fresh.database.openRecordsets());
        EXPECT_THAT(fresh.failures(), IsEmpty());
    }
}

TEST_F(ConfigurationDatabase, AsksForOneNameAsItStands)
{
    tool.database.opened().withConfiguration("System.X", 7, 3);

    read();

    EXPECT_THAT(tool.database.queries(),
                ElementsAre("SELECT Value, Type From vw_ConfigurationValue WHERE FullName = "
                            "'System.X'"));
}

TEST_F(ConfigurationDatabase, GivesNullForANameWithoutARowAndClosesTheRecordset)
{
    tool.database.opened().withConfiguration("System.X", 7, 3);

    EXPECT_EQ(Value(Null{}), read("System.Y"));

    EXPECT_EQ(0, tool.database.openRecordsets());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ConfigurationDatabase, LooksAtTheFirstRowAlone)
{
    tool.database.opened().withConfiguration("System.X", 7, 3).withConfiguration("System.X", 8, 3);

    EXPECT_EQ(Value(7), read());
}

TEST_F(ConfigurationDatabase, GivesNullForAnIntegerThatIsNoneAndLogsIt)
{
    struct Case {
        const char* because;
        std::int32_t typeCode;
        Value stored;
        const char* logged;
    };
    const Case cases[] = {
        {"a word", 3, std::string("abc"), "Err.Number = 13 Err.Description = Type mismatch"},
        {"Null", 3, Null{}, "Err.Number = 94 Err.Description = Invalid use of Null"},
        {"a number past 32 bits", 3, 2147483648.0, "Err.Number = 6 Err.Description = Overflow"},
        {"a word as a boolean", 11, std::string("maybe"),
         "Err.Number = 13 Err.Description = Type mismatch"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool fresh;
        fresh.database.opened().withConfiguration("System.X", c.stored, c.typeCode);

        EXPECT_EQ(Value(Null{}), GetConfigurationSetting(fresh.context, "System.X"));

        EXPECT_THAT(fresh.failures(), ElementsAre(c.logged));
        EXPECT_EQ(0, fresh.database.openRecordsets()) << "the recordset is closed all the same";
    }
}

TEST_F(ConfigurationDatabase, GivesNullForARowWhoseTypeIsNoNumber)
{
    tool.database.opened()
        .withConfiguration("System.X", 7, 3)
        .withRow("vw_ConfigurationValue",
                 {{"FullName", std::string("System.Y")}, {"Value", 7}, {"Type", Null{}}});

    EXPECT_EQ(Value(Null{}), read("System.Y"));

    EXPECT_EQ(1u, tool.failures("[mdlOrvanDatabase]GetConfigurationSetting").size());
}

TEST_F(ConfigurationDatabase, OpensAClosedConnectionAgainAndReadsAsIfNothingHadHappened)
{
    tool.database.opened().withConfiguration("System.X", 7, 3);
    tool.database.breakConnection();

    EXPECT_EQ(Value(7), read());

    EXPECT_THAT(tool.database.connectionStrings(), ElementsAre(localConnection));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ConfigurationDatabase, TriesAnUnreachableServerTenTimesAndThenLeaves)
{
    tool.database.withConfiguration("System.X", 7, 3).unreachable();

    EXPECT_EQ(Value(Null{}), read());

    EXPECT_EQ(10u, tool.database.connectionStrings().size());
    EXPECT_EQ(11u, tool.database.queries().size());
    const std::string routine = "[mdlOrvanDatabase]GetConfigurationSetting";
    ASSERT_EQ(2u, tool.failures(routine).size()) << "none of the ten before is logged";
    EXPECT_THAT(tool.failures(routine)[0], testing::StartsWith("Err.Number = 3709 "));
    EXPECT_EQ("Error count exceeded, forcing exit from " + routine, tool.failures(routine)[1]);
}

TEST_F(ConfigurationDatabase, LogsAQueryThatTheServerRefusesAndGivesNull)
{
    tool.database.opened().withConfiguration("System.X", 7, 3);

    EXPECT_EQ(Value(Null{}), read("System.O'Brien"));

    EXPECT_THAT(tool.failures(),
                ElementsAre("Err.Number = -2147217900 Err.Description = Incorrect syntax",
                            testing::StartsWith("Err.Number = 3704 "),
                            testing::StartsWith("Err.Number = 3704 ")));
    EXPECT_THAT(tool.database.connectionStrings(), IsEmpty());
}

TEST_F(ConfigurationDatabase, WritesAValueToTheParameterOfItsTypeCode)
{
    struct Case {
        std::int32_t typeCode;
        const char* parameter;
        Value value;
    };
    const Case cases[] = {{3, "@ValueLong", std::string("400")},
                          {4, "@ValueFloat", 3.5},
                          {7, "@ValueDate", Date{38633.5}},
                          {8, "@ValueString", std::string("C:\\Logs")},
                          {11, "@ValueBool", true},
                          {88, "@ValueGuid", Guid{"{0B8A}"}},
                          {8, "@ValueString", std::string("O'Brien's")}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.parameter);
        tool.database.opened().withConfiguration("System.X", 7, 3);

        EXPECT_EQ(Value(Empty{}), write(c.value, c.typeCode));

        EXPECT_EQ("csp_ConfigurationModify", tool.database.calls().back().procedure);
        EXPECT_THAT(
            parametersWritten(),
            UnorderedElementsAre(Pair("@AuditAlias", Value(std::string("support"))),
                                 Pair("@AuditComponent", Value(std::string("OrvanDiagnosticTool"))),
                                 Pair("@FullName", Value(std::string("System.X"))),
                                 Pair(c.parameter, c.value)));
    }
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ConfigurationDatabase, CallsTheProcedureWithoutAValueForOtherTypeCodes)
{
    for (const int typeCode : {1, 0, 2, 5, 89, -1}) {
        SCOPED_TRACE(typeCode);
        tool.database.opened().withConfiguration("System.X", 7, 3);
        const std::size_t before = tool.database.calls().size();

        EXPECT_EQ(Value(Empty{}), write(9, typeCode));

        EXPECT_EQ(before + 1, tool.database.calls().size());
        EXPECT_THAT(parametersWritten(),
                    UnorderedElementsAre(Pair("@AuditAlias", testing::_),
                                         Pair("@AuditComponent", testing::_),
                                         Pair("@FullName", Value(std::string("System.X")))));
    }
}

TEST_F(ConfigurationDatabase, OnlyLogsAWriteOnAClosedConnection)
{
    tool.database.opened().withConfiguration("System.X", 7, 3);
    tool.database.breakConnection();

    EXPECT_EQ(Value(Empty{}), write(9, 3));

    EXPECT_THAT(tool.database.calls(), IsEmpty());
    EXPECT_THAT(tool.database.connectionStrings(), IsEmpty()) << "a write opens nothing";
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetConfigurationSetting"),
                testing::Contains(testing::StartsWith("Err.Number = 3709 ")));
}

TEST_F(ConfigurationDatabase, OnlyLogsAWriteThatTheServerRefuses)
{
    tool.database.opened()
        .withConfiguration("System.X", 7, 3)
        .withProcedure(
            "csp_ConfigurationModify",
            {"@AuditAlias", "@AuditComponent", "@FullName", "@ValueLong"},
            [](const FakeDatabase::Call&) { throw RunTimeError(-2147217873, "A rule says no."); });

    EXPECT_EQ(Value(Empty{}), write(9, 3));

    EXPECT_THAT(tool.failures(),
                ElementsAre("Err.Number = -2147217873 Err.Description = A rule says no."));
    EXPECT_EQ(Value(7), read());
}

TEST_F(ConfigurationDatabase, LeavesParametersOfTheServersOwnAlone)
{
    tool.database.opened().withProcedure(
        "csp_ConfigurationModify",
        {"@RETURN_VALUE", "@AuditAlias", "@AuditComponent", "@FullName", "@ValueLong", "@Extra"});

    write(9, 3);

    EXPECT_EQ(0u, parametersWritten().count("@Extra"));
    EXPECT_EQ(4u, parametersWritten().size());
}

TEST_F(ConfigurationDatabase, StampsAnEmptyAliasWhereNobodyIsLoggedOn)
{
    tool.workstation.person.reset();
    tool.database.opened().withConfiguration("System.X", 7, 3);

    write(9, 3);

    EXPECT_EQ(Value(std::string()), parametersWritten()["@AuditAlias"]);
}

TEST_F(ConfigurationDatabase, ReadsForwardOnlyWithAnOptimisticLock)
{
    tool.database.opened().withConfiguration("System.X", 7, 3);

    read();

    EXPECT_THAT(tool.database.cursors(),
                ElementsAre(Pair(CursorKind::forwardOnly, LockKind::optimistic)));
}

TEST_F(ConfigurationDatabase, WritesAlsoWhereTheServerTakesNoAuditParameters)
{
    tool.database.opened().withProcedure("csp_ConfigurationModify", {"@FullName", "@ValueLong"});

    write(9, 3);

    EXPECT_THAT(parametersWritten(),
                UnorderedElementsAre(Pair("@FullName", testing::_), Pair("@ValueLong", Value(9))));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]setAuditParameters"),
                ElementsAre(testing::StartsWith("Err.Number = 3265 "),
                            testing::StartsWith("Err.Number = 3265 ")));
}

TEST_F(ConfigurationDatabase, LeavesAWriteOnItsEleventhErrorInTheDevelopmentHost)
{
    struct Case {
        const char* because;
        std::vector<std::string> parameters;
        const char* routine;
    };
    const Case cases[] = {
        {"the server refuses each call",
         {"@AuditAlias", "@AuditComponent", "@FullName", "@ValueLong"},
         "SetConfigurationSetting"},
        {"the audit stamp finds no place", {"@FullName", "@ValueLong"}, "setAuditParameters"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool fresh;
        fresh.module.developmentHost = true;
        fresh.database.opened().withProcedure(
            "csp_ConfigurationModify", c.parameters,
            [](const FakeDatabase::Call&) { throw RunTimeError(5); });

        SetConfigurationSetting(fresh.context, "System.X", 9, 3);

        EXPECT_EQ(11u, fresh.database.calls().size());
        const std::string routine = std::string("[mdlOrvanDatabase]") + c.routine;
        EXPECT_EQ(12u, fresh.failures(routine).size());
        EXPECT_EQ("Error count exceeded, forcing exit from " + routine,
                  fresh.failures(routine).back());
    }
}
