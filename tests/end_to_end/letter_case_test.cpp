#include "end_to_end/sample_site.h"

#include <gmock/gmock.h>

#include <sqlite3.h>

#include <memory>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Words = std::vector<std::string>;

/// Names may be written in any case of their letters, where they are the program's or the server's.
struct LetterCase : SampleSite {
    /// Expects that two calls show the same, and something.
    void expectSame(const Words& exact, const Words& other)
    {
        SCOPED_TRACE(testing::PrintToString(other));
        const Outcome wanted = run(exact);
        const Outcome got = run(other);
        EXPECT_EQ(0, got.status) << got.err;
        EXPECT_NE("", got.out);
        EXPECT_EQ(wanted.out, got.out);
        EXPECT_EQ(wanted.err, got.err);
    }

    void expectRefused(const Words& words, const std::string& told)
    {
        SCOPED_TRACE(testing::PrintToString(words));
        const Outcome refused = run(words);
        EXPECT_EQ(1, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_EQ("orvandiag: " + told + "\n", refused.err);
    }

    void execute(const std::string& statement)
    {
        sqlite3* opened = nullptr;
        ASSERT_EQ(SQLITE_OK, sqlite3_open((site / "OrvanDirDb.sqlite").c_str(), &opened));
        const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(opened, statement.c_str(), nullptr, nullptr, nullptr))
            << sqlite3_errmsg(opened);
    }

    bool isOn(const std::string& component, int level)
    {
        for (const auto& shown : runJson({"micro", component}).json())
            for (const auto& one : shown["levels"])
                if (one["level"] == level) return one["enabled"];
        ADD_FAILURE() << component << " has no level " << level;
        return false;
    }
};

TEST_F(LetterCase, DoesNotMatterToCommandsOptionsAndTheirWords)
{
    expectSame({"status"}, {"STATUS"});
    expectSame({"--json", "status"}, {"Status", "--JSON"});
    expectSame({"completion", "bash"}, {"Completion", "BASH"});
    expectSame({"gather", "frame", "--help"}, {"GATHER", "Frame", "--Help"});
    expectSame({"read", "--format", "csv", "-n", "3"}, {"read", "--Format", "CSV", "-N", "3"});
    expectSame({"read", "--count-by", "component"}, {"read", "--COUNT-BY", "Component"});
    expectSame({"read", "--columns", "level,trace", "-n", "3"},
               {"read", "--columns", "LEVEL,Trace", "-n", "3"});
    expectSame({"read", "--exclude", "component=Timer", "--count"},
               {"read", "--exclude", "Component=TIMER", "--count"});
    const std::string other = (folder / "other").string();
    EXPECT_EQ(0, orvandiag({"Sample", other, "--LINES", "100", "--fields", "Extended"}).status);
    EXPECT_EQ(true, orvandiag({"--site", other, "--json", "status"}).json()["extendedFields"]);
}

TEST_F(LetterCase, DoesNotMatterToNamesOfTheServer)
{
    expectSame({"logs", "KoCSMgr"}, {"logs", "kocsmgr"});
    expectSame({"read", currentLog(), "--count"},
               {"read", "DIAG_" + currentLog().substr(5), "--count"});
    expectSame({"flags", "CallFlow"}, {"flags", "callflow"});
    expectSame({"micro", "CallFlow"}, {"micro", "CALLFLOW"});
    expectSame({"language", "FRA"}, {"language", "fra"});
    expectSame({"event-language", "FRA"}, {"event-language", "fra"});
    expectSame({"read", "--macro", "Call Flow - Transfers", "--count"},
               {"read", "--macro", "call flow - TRANSFERS", "--count"});
    EXPECT_EQ(0, run({"gather", "logs", "--log", "DIAG_" + currentLog().substr(5), "--event-log",
                      "SYSTEM", "--to", target.string()})
                     .status);
    EXPECT_TRUE(fs::exists(target));
}

TEST_F(LetterCase, DoesNotMatterToTracesThatAreSet)
{
    ASSERT_FALSE(isOn("CallFlow", 7));
    EXPECT_EQ(0, run({"micro", "set", "--on", "callflow:7"}).status);
    EXPECT_TRUE(isOn("CallFlow", 7));
    EXPECT_EQ(0, run({"macro", "set", "--on", "call flow - transfers"}).status);
    for (const auto& trace : runJson({"macro"}).json())
        EXPECT_EQ(trace["group"] == "Call Flow" && trace["trace"] == "Transfers", trace["enabled"])
            << trace;
}

TEST_F(LetterCase, TellsComponentsApartThatDifferInItAlone)
{
    // The shipped table holds no two such names, but a server's own views may.
    execute("DROP VIEW vw_LoggerDiagnosticGrid; "
            "CREATE VIEW vw_LoggerDiagnosticGrid (Name, ObjectId, Flags, DefaultFlags) AS "
            "SELECT Name, ObjectId, Flags, DefaultFlags FROM tbl_LoggerDiagnosticGrid "
            "UNION ALL SELECT 'CALLFLOW', '{another}', 3, 3");
    EXPECT_EQ("CALLFLOW", runJson({"flags", "CALLFLOW"}).json()[0]["name"]);
    EXPECT_EQ("CallFlow", runJson({"flags", "CallFlow"}).json()[0]["name"]);
    const std::string told =
        "\"callflow\" may be CallFlow or CALLFLOW; write it as it stands there";
    expectRefused({"flags", "callflow"}, told);
    expectRefused({"micro", "callflow"}, told);
    expectRefused({"micro", "set", "--on", "callflow:7"}, told);
}

TEST_F(LetterCase, MattersToPaths)
{
    const fs::path copy = folder / "Copy";
    fs::copy(site, copy, fs::copy_options::recursive);
    EXPECT_EQ(0, orvandiag({"--site", copy.string(), "status"}).status);
    EXPECT_EQ(1, orvandiag({"--site", (folder / "copy").string(), "status"}).status);
}

} // namespace
