#include "backends/site/sample_site.h"
#include "runtime/run_time_error.h"
#include "support/places.h"
#include "system/whole_file.h"

#include <gmock/gmock.h>
#include <memory>
#include <set>
#include <sqlite3.h>

namespace {

/// The directory database of a fresh sample, through SQLite alone.
class SampleDatabase : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(SQLITE_OK, sqlite3_open(site_.path("OrvanDirDb.sqlite").c_str(), &database_));
    }
    void TearDown() override { sqlite3_close(database_); }

    /// The first columns of all rows, or the error's text alone.
    std::vector<std::string> query(const std::string& statement)
    {
        std::vector<std::string> values;
        const auto collect = [](void* list, int, char** columns, char**) {
            static_cast<std::vector<std::string>*>(list)->push_back(columns[0] ? columns[0]
                                                                               : "NULL");
            return 0;
        };
        if (sqlite3_exec(database_, statement.c_str(), collect, &values, nullptr) != SQLITE_OK)
            return {sqlite3_errmsg(database_)};
        return values;
    }

    std::string one(const std::string& statement)
    {
        const auto values = query(statement);
        return values.size() == 1 ? values[0] : std::to_string(values.size()) + " rows";
    }

    std::string setting(const std::string& column, const std::string& fullName)
    {
        return one("SELECT " + column + " FROM vw_ConfigurationValue WHERE FullName = '" +
                   fullName + "'");
    }

    /// Calls csp_ConfigurationModify with one value parameter.
    std::vector<std::string> modify(const std::string& fullName, const std::string& parameter,
                                    const std::string& value)
    {
        return query("INSERT INTO csp_ConfigurationModify (AuditAlias, AuditComponent, FullName, " +
                     parameter + ") VALUES ('alias', 'component', '" + fullName + "', " + value +
                     ")");
    }

    const SampleSite site_{100};
    sqlite3* database_ = nullptr;
};

constexpr const char* megabytes = "System.LogMgr.MaxDiagnosticMegabytesSaved";

TEST(SampleGridCatalogue, ExplainsAtLeast25ComponentsWith8To32LevelsInTwoLanguages)
{
    const SampleSite site(100);
    const SampleGrid english = site.grid("ENU"), french = site.grid("FRA");
    EXPECT_GE(english.size(), 25U);
    ASSERT_EQ(english.size(), french.size());
    std::set<std::string> placeholders;
    for (const auto& [component, levels] : english) {
        SCOPED_TRACE(component);
        EXPECT_GE(levels.size(), 8U);
        EXPECT_LE(levels.size(), 32U);
        ASSERT_EQ(1U, french.count(component));
        EXPECT_EQ(levels.size(), french.at(component).size());
        for (const auto& level : levels)
            if (isPlaceholder(level)) placeholders.insert(level);
    }
    EXPECT_THAT(placeholders, testing::UnorderedElementsAre("Reserved", "Not defined",
                                                            "Not available in this release"));
}

TEST(SampleGridCatalogue, ShowsComponentsWithoutParentheses)
{
    for (const char* language : {"ENU", "FRA"}) {
        const XmlFile file(readMachineFile(std::string(built::data) + "/sample/DiagnosticGrids_" +
                                               language + ".xml",
                                           runTimeErrors::fileNotFound));
        const auto components = file.document->selectNodes("DiagnosticGrids/*");
        EXPECT_FALSE(components.empty());
        for (const auto& component : components) {
            const std::string text = requiredAttribute(component, "text");
            EXPECT_FALSE(text.empty());
            EXPECT_EQ(std::string::npos, text.find_first_of("()")) << text;
        }
    }
}

TEST(SampleMacroTraces, AreInGroupsOfFourOrMoreOverLevelsThatExist)
{
    const SampleSite site(100);
    const SampleGrid grid = site.grid("ENU");
    std::map<std::string, int> filesOfGroup;
    std::set<std::string> hidden;
    const std::string folder = site.path("drive_c/OrvanDiagnostics/ZMKXML");
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path().filename().string());
        const XmlFile file(readMachineFile(entry.path(), runTimeErrors::fileNotFound));
        const auto group = file.document->selectSingleNode("GA");
        const std::string name = requiredAttribute(group, "NAME");
        ++filesOfGroup[name];
        if (group->attribute("DONTSHOW")) hidden.insert(name);
        EXPECT_GE(group->selectNodes("TRACE").size(), 4U);
        for (const auto& diag : group->selectNodes("TRACE/DIAG")) {
            const std::string component = requiredAttribute(diag, "GROUP");
            ASSERT_EQ(1U, grid.count(component)) << component;
            for (const auto& flag : diag->selectNodes("FLAG")) {
                const auto level = std::stoul(requiredAttribute(flag, "ID"));
                ASSERT_LT(level, grid.at(component).size()) << component;
                EXPECT_FALSE(isPlaceholder(grid.at(component)[level])) << component << ' ' << level;
            }
        }
    }
    EXPECT_GE(filesOfGroup.size() - hidden.size(), 5U);
    EXPECT_EQ(1U, hidden.size());
    EXPECT_EQ(2, filesOfGroup["Call Flow"]);
}

TEST_F(SampleDatabase, HoldsTheComponentsOfTheCatalogue)
{
    std::vector<std::string> names;
    for (const auto& [component, levels] : site_.grid("ENU")) names.push_back(component);
    EXPECT_EQ(names, query("SELECT Name FROM vw_LoggerDiagnosticGrid ORDER BY Name"));
}

TEST_F(SampleDatabase, HasItsDefaultsOnAndOneWordWithTheHighestBit)
{
    EXPECT_EQ("0", one("SELECT count(*) FROM vw_LoggerDiagnosticGrid "
                       "WHERE Flags & DefaultFlags <> DefaultFlags"));
    EXPECT_EQ("PortControl", one("SELECT Name FROM vw_LoggerDiagnosticGrid WHERE Flags < 0"));
}

TEST_F(SampleDatabase, FindsNamesWithoutRegardToCase)
{
    EXPECT_EQ("CallFlow", one("SELECT Name FROM vw_LoggerDiagnosticGrid WHERE Name = 'CALLFLOW'"));
    EXPECT_EQ("400", setting("Value", "system.logmgr.maxdiagnosticmegabytessaved"));
}

TEST_F(SampleDatabase, HasAConfigurationValueOfEachType)
{
    EXPECT_EQ((std::vector<std::string>{"1", "3", "4", "7", "8", "11", "88"}),
              query("SELECT DISTINCT Type FROM vw_ConfigurationValue ORDER BY Type"));
}

TEST_F(SampleDatabase, ShowsTheParametersOfItsProceduresAsColumns)
{
    const auto columns = [&](const std::string& view) {
        return query("SELECT name FROM pragma_table_info('" + view + "')");
    };
    EXPECT_THAT(columns("csp_ConfigurationModify"),
                testing::ElementsAre("AuditAlias", "AuditComponent", "FullName", "ValueLong",
                                     "ValueFloat", "ValueDate", "ValueString", "ValueBool",
                                     "ValueGuid"));
    EXPECT_THAT(columns("csp_LoggerDiagnosticGridModify"),
                testing::ElementsAre("AuditAlias", "AuditComponent", "Name", "ObjectId", "Flags"));
}

TEST_F(SampleDatabase, WritesAFlagWordFoundByItsIdentityAlone)
{
    const std::string id = one("SELECT ObjectId FROM vw_LoggerDiagnosticGrid WHERE Name = 'Codec'");
    EXPECT_THAT(query("INSERT INTO csp_LoggerDiagnosticGridModify (AuditAlias, AuditComponent, "
                      "ObjectId, Flags) VALUES ('alias', 'component', '" +
                      id + "', -2147483648)"),
                testing::IsEmpty());

    EXPECT_EQ("-2147483648", one("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = 'Codec'"));
    EXPECT_EQ("csp_LoggerDiagnosticGridModify|alias|component|" + id + "|-2147483648",
              one("SELECT ProcedureName || '|' || AuditAlias || '|' || AuditComponent || '|' || "
                  "ObjectId || '|' || Value FROM tbl_ProcedureAudit WHERE Name IS NULL"));
}

TEST_F(SampleDatabase, RefusesFlagsThatAreNoWordAndIdentitiesThatAreNoComponents)
{
    const std::string id = one("SELECT ObjectId FROM vw_LoggerDiagnosticGrid WHERE Name = 'Codec'");
    struct Case {
        const char* because;
        std::string values;
        const char* error;
    };
    const Case cases[] = {
        {"no component", "'none', 1", "No component has this object identity."},
        {"no identity", "NULL, 1", "No component has this object identity."},
        {"no flags", "'" + id + "', NULL", "The flags are not a word of 32 bits."},
        {"33 bits", "'" + id + "', 4294967296", "The flags are not a word of 32 bits."},
        {"words", "'" + id + "', 'all'", "The flags are not a word of 32 bits."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.error, one("INSERT INTO csp_LoggerDiagnosticGridModify (ObjectId, Flags) "
                               "VALUES (" +
                               c.values + ")"));
    }
    EXPECT_EQ("1", one("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = 'Codec'"));
    EXPECT_EQ("5", one("SELECT count(*) FROM tbl_ProcedureAudit")) << "refused calls are kept";
}

TEST_F(SampleDatabase, SetsAValueOfTheTypeOfItsParameter)
{
    struct Case {
        const char* because;
        const char* parameter;
        const char* given;
        const char* type;
        const char* kept;
    };
    const Case cases[] = {
        {"a number in a text, as a box shows it", "ValueLong", "' 5100'", "3", "5100"},
        {"a number below zero", "ValueLong", "-7", "3", "-7"},
        {"a fraction", "ValueFloat", "2.5", "4", "2.5"},
        {"a date is kept as it comes", "ValueDate", "'2025-02-20 17:00:00'", "7",
         "2025-02-20 17:00:00"},
        {"a text", "ValueString", "'C:\\Logs'", "8", "C:\\Logs"},
        {"true as the platform has it", "ValueBool", "-1", "11", "1"},
        {"true in words", "ValueBool", "'True'", "11", "1"},
        {"false", "ValueBool", "0", "11", "0"},
        {"a GUID", "ValueGuid", "'{A}'", "88", "{A}"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_THAT(modify(megabytes, c.parameter, c.given), testing::IsEmpty());
        EXPECT_EQ(c.kept, setting("Value", megabytes));
        EXPECT_EQ(c.type, setting("Type", megabytes));
    }
}

TEST_F(SampleDatabase, LeavesAValueAloneWhenNoneIsGiven)
{
    EXPECT_THAT(modify(megabytes, "ValueLong", "NULL"), testing::IsEmpty());
    EXPECT_EQ("400", setting("Value", megabytes));
    EXPECT_EQ(megabytes, one("SELECT Name FROM tbl_ProcedureAudit"));
}

TEST_F(SampleDatabase, RefusesWhatIsNoIntegerAndNamesThatHaveNoValue)
{
    for (const char* given : {"'many'", "''", "'12 3'", "'1-'", "'--1'", "99999999999", "X'00'"}) {
        SCOPED_TRACE(given);
        EXPECT_THAT(modify(megabytes, "ValueLong", given),
                    testing::ElementsAre("The value is not a 32-bit integer."));
    }
    EXPECT_THAT(modify("System.None", "ValueLong", "1"),
                testing::ElementsAre("No configuration value has this full name."));
    EXPECT_EQ("400", setting("Value", megabytes));
    EXPECT_EQ("8", one("SELECT count(*) FROM tbl_ProcedureAudit")) << "refused calls are kept";
}

TEST_F(SampleDatabase, KeepsNoSecondFileBesideItself)
{
    modify(megabytes, "ValueLong", "500");
    EXPECT_EQ("delete", one("PRAGMA journal_mode"));
    for (const char* file : {"OrvanDirDb.sqlite-wal", "OrvanDirDb.sqlite-journal"})
        EXPECT_FALSE(std::filesystem::exists(site_.path(file))) << file;
}

} // namespace
