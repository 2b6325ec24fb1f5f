#include "end_to_end/sample_site.h"
#include "support/places.h"
#include "support/postgres_server.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;
using Words = std::vector<std::string>;

PostgresServer& server()
{
    static PostgresServer server;
    return server;
}

enum class Kind { sqlite, postgres };

/// Two sites that are the same, but that one's directory database is behind ODBC.
class ServerDatabase : public SampleSite, public testing::WithParamInterface<Kind> {
protected:
    ServerDatabase()
    {
        fs::copy(site, onServer, fs::copy_options::recursive);
        fs::rename(onServer / "OrvanDirDb.sqlite", folder / "away.db");
        if (GetParam() == Kind::sqlite) {
            useSource("Driver=SQLite3;Database=" + (folder / "away.db").string());
        } else {
            fillServer();
            useSource(server().connectionString());
        }
    }

    void useSource(const std::string& source) const
    {
        write(onServer / "site.ini",
              read(site / "site.ini") + "\n[database]\nodbc = " + source + "\n");
    }

    std::string sqlite(const fs::path& file, const std::string& statement) const
    {
        const Outcome shell = runProgram({"sqlite3", file.string(), statement});
        EXPECT_EQ(0, shell.status) << shell.err;
        return shell.out;
    }

    std::string onFile(const std::string& statement) const
    {
        return sqlite(site / "OrvanDirDb.sqlite", statement);
    }

    std::string behindOdbc(const std::string& statement) const
    {
        if (GetParam() == Kind::sqlite) return sqlite(folder / "away.db", statement);
        const std::string rows = server().run(statement);
        return rows + (rows.empty() ? "" : "\n");
    }

    /// The same of both sites.
    void expectSame(const std::string& statement) const
    {
        EXPECT_EQ(onFile(statement), behindOdbc(statement)) << statement;
    }

    Outcome runOnServer(Words words) const
    {
        words.insert(words.begin(), {"--site", onServer.string()});
        return orvandiag(words, folder.string());
    }

    /// Runs a command on both sites; they are to say the same. Gives what they said.
    std::string expectSameOf(const Words& words, int status = 0) const
    {
        const Outcome wanted = run(words);
        const Outcome got = runOnServer(words);
        EXPECT_EQ(status, wanted.status) << wanted.err;
        EXPECT_EQ(wanted.status, got.status) << got.err;
        EXPECT_EQ(wanted.out, got.out);
        EXPECT_EQ(wanted.err, got.err);
        return got.out;
    }

    /// All but the moments at which something was set, and the blanks around numbers, which a
    /// parameter of a number does not keep.
    void expectSameRows() const
    {
        expectSame("SELECT Name, ObjectId, Flags, DefaultFlags FROM vw_LoggerDiagnosticGrid"
                   " ORDER BY upper(Name)");
        expectSame("SELECT FullName, Value, Type FROM vw_ConfigurationValue WHERE Type <> 7"
                   " ORDER BY upper(FullName)");
        expectSame("SELECT ProcedureName, AuditAlias, AuditComponent, Name, ObjectId, trim(Value)"
                   " FROM tbl_ProcedureAudit WHERE coalesce(Name, '') NOT LIKE '%TimeSet'"
                   " ORDER BY Id");
        const std::string moments =
            "SELECT count(*) FROM vw_ConfigurationValue WHERE Type = 7 AND length(Value) = 19";
        expectSame(moments);
        EXPECT_EQ("4\n", onFile(moments));
    }

    fs::path onServer = folder / "on_server";

private:
    /// The rows of the sample in the server's own tables.
    void fillServer() const
    {
        server().reset();
        server().runFile(checkout::data + std::string("/server/postgres.sql"));
        server().run(onFile(
            "SELECT 'INSERT INTO tbl_ConfigurationValue VALUES(' || quote(FullName) || ',' ||"
            " quote(CAST(Value AS TEXT)) || ',' || Type || ');' FROM tbl_ConfigurationValue"));
        server().run(onFile(
            "SELECT 'INSERT INTO tbl_LoggerDiagnosticGrid(ObjectId, Name, Flags, DefaultFlags)"
            " VALUES(' || quote(ObjectId) || ',' || quote(Name) || ',' || Flags || ',' ||"
            " DefaultFlags || ');' FROM tbl_LoggerDiagnosticGrid"));
    }
};

TEST_P(ServerDatabase, ShowsWhatTheFileShows)
{
    EXPECT_THAT(expectSameOf({"status"}), HasSubstr("Database         connected"));
    EXPECT_THAT(expectSameOf({"flags"}), HasSubstr("PortControl"));
    for (const Words& words : {Words{"--json", "flags"}, Words{"flags", "Codec"},
                               Words{"--json", "macro"}, Words{"--json", "micro"},
                               Words{"--json", "micro", "CallFlow"}, Words{"--json", "settings"}})
        expectSameOf(words);
    expectSameOf({"flags", "None"}, 1);
    expectSameRows();
    EXPECT_EQ("0\n", behindOdbc("SELECT count(*) FROM tbl_ProcedureAudit")) << "a look calls none";
}

TEST_P(ServerDatabase, ChangesWhatTheFileChanges)
{
    expectSameOf({"micro", "set", "--on", "Codec:3", "--off", "CallFlow:23"});
    expectSameRows();
    std::string trace;
    for (const auto& each : json::parse(run({"--json", "macro"}).out))
        if (!each["enabled"])
            trace = each["group"].get<std::string>() + " - " + each["trace"].get<std::string>();
    ASSERT_NE("", trace);
    expectSameOf({"macro", "set", "--on", trace});
    expectSameRows();
    expectSameOf({"--json", "macro"});
    expectSameOf({"macro", "set", "--off", trace});
    expectSameOf({"settings", "--max-megabytes", "700"});
    expectSameOf({"--json", "settings"});
    expectSameRows();
    EXPECT_EQ("700\n", behindOdbc("SELECT Value FROM vw_ConfigurationValue WHERE FullName ="
                                  " 'System.LogMgr.MaxDiagnosticMegabytesSaved'"));
    expectSameOf({"micro", "set", "--on", "LineSignal:7"});
    expectSameOf({"reset"});
    expectSameRows();
    expectSameOf({"--json", "flags"});
    EXPECT_NE("0\n", behindOdbc("SELECT count(*) FROM tbl_ProcedureAudit"));
}

TEST_P(ServerDatabase, LeavesTheSitesOwnFileAlone)
{
    write(onServer / "OrvanDirDb.sqlite", "not looked at");
    EXPECT_EQ(0, runOnServer({"micro", "set", "--on", "Codec:3"}).status);
    EXPECT_EQ("not looked at", read(onServer / "OrvanDirDb.sqlite"));
}

TEST_P(ServerDatabase, ThatCannotBeReachedIsToldInASentenceAndNothingChanges)
{
    struct Case {
        std::string source;
        std::string part;
    };
    const Case cases[] = {
        {"garbage", "Data source name not found"},
        {"Driver=/tmp/x.so;Server=here", "No driver on this machine is called \"/tmp/x.so\""},
        {"Driver=SQLite3;LoadExt=/tmp/x.so", "may not say \"LoadExt\""},
        {"Driver=SQLite3;Database=" + (folder / "none.db").string(), "connect failed"},
        {"Driver=PostgreSQL Unicode;Servername=" + folder.string() + ";Database=x;UID=x",
         folder.string()},
        {"=", "\"Key=Value;Key=Value\""},
    };
    for (const auto& c : cases) {
        useSource(c.source);
        const Outcome status = runOnServer({"status"});
        EXPECT_EQ(0, status.status) << c.source;
        EXPECT_THAT(status.out, HasSubstr("cannot connect: traces can't be changed\n"
                                          "                 "));
        EXPECT_THAT(status.out, HasSubstr(c.part));
        const Outcome refused = runOnServer({"micro", "set", "--on", "Codec:3"});
        EXPECT_EQ(1, refused.status) << c.source;
        EXPECT_THAT(refused.err, HasSubstr("cannot connect to the server's database: "));
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
    }
    EXPECT_FALSE(fs::exists(folder / "none.db"));
}

INSTANTIATE_TEST_SUITE_P(Behind, ServerDatabase, testing::Values(Kind::sqlite, Kind::postgres),
                         [](const auto& kind) {
                             return kind.param == Kind::sqlite ? "Sqlite" : "Postgres";
                         });

} // namespace
