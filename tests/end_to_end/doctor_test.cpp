#include "end_to_end/broken_servers.h"
#include "end_to_end/site_record.h"

#include <gmock/gmock.h>

#include <chrono>
#include <set>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using Words = std::vector<std::string>;

/// A sample server, which doctor looks at as a person asks it to.
struct Doctor : BreakableServer {
    /// The findings by their ids. The site is as it was afterwards.
    std::map<std::string, nlohmann::json> findings(int status) const
    {
        const auto before = recordOf(site);
        const Outcome outcome = runJson({"doctor"});
        EXPECT_EQ(before, recordOf(site)) << "a look changes nothing";
        EXPECT_EQ(status, outcome.status) << outcome.err;
        std::map<std::string, nlohmann::json> byId;
        for (const auto& finding : outcome.json()) byId[finding["check"]] = finding;
        return byId;
    }

    /// The ids of what is not ok, with the states.
    static std::map<std::string, std::string>
    notOk(const std::map<std::string, nlohmann::json>& findings)
    {
        std::map<std::string, std::string> states;
        for (const auto& [id, finding] : findings)
            if (finding["condition"] != "ok") states[id] = finding["condition"];
        return states;
    }
};

const std::vector<std::string> ids = {"server",
                                      "registry.server-folder",
                                      "registry.version",
                                      "registry.log-folder",
                                      "registry.processes",
                                      "registry.signals",
                                      "registry.event-logs",
                                      "registry.event-sources",
                                      "database",
                                      "database.flags",
                                      "database.change-flags",
                                      "database.settings",
                                      "database.change-settings",
                                      "catalogue",
                                      "catalogue.components",
                                      "definitions",
                                      "definitions.components",
                                      "log-folder",
                                      "current-logs",
                                      "event-reporter",
                                      "rights",
                                      "rights.database",
                                      "rights.tool-log",
                                      "space",
                                      "trace-database",
                                      "cabinet-maker",
                                      "viewer",
                                      "languages"};

TEST_F(Doctor, FindsTheSampleServerInOrderButForItsViewer)
{
    const auto before = recordOf(site);
    const Outcome outcome = run({"doctor"});
    EXPECT_EQ(before, recordOf(site));
    EXPECT_EQ(0, outcome.status);
    EXPECT_EQ("", outcome.err);
    EXPECT_THAT(outcome.out, HasSubstr("missing  Viewer (useful)"));
    EXPECT_THAT(outcome.out, HasSubstr("What to do\n  Viewer: "));
    EXPECT_THAT(outcome.out, HasSubstr("All that is needed is in order; 1 merely useful thing is "
                                       "not in order.\n"));
}

TEST_F(Doctor, TellsEachCheckByAStableNameInAStableOrder)
{
    std::vector<std::string> told;
    const Outcome outcome = runJson({"doctor"});
    for (const auto& finding : outcome.json()) {
        told.push_back(finding["check"]);
        std::set<std::string> names;
        for (const auto& item : finding.items()) names.insert(item.key());
        EXPECT_EQ((std::set<std::string>{"check", "state", "text", "subject", "needed", "condition",
                                         "remedy"}),
                  names);
        EXPECT_TRUE(finding["needed"].is_boolean());
        EXPECT_NE("", finding["text"]);
        EXPECT_EQ(finding["condition"] == "ok", finding["remedy"].is_null()) << finding;
        EXPECT_EQ(finding["condition"] == "ok" ? "ok"
                  : finding["needed"]          ? "error"
                                               : "warning",
                  finding["state"])
            << finding;
    }
    EXPECT_EQ(ids, told);
}

TEST_F(Doctor, TellsOfEachThingThatIsBrokenAndOfWhatTheToolCannotDoThen)
{
    const fs::path whole = folder / "whole";
    fs::rename(site, whole);
    for (const BrokenServer& broken : brokenServers()) {
        SCOPED_TRACE(broken.what);
        fs::remove_all(site);
        fs::copy(whole, site, fs::copy_options::recursive);
        broken.breakIt(*this);
        const auto found = findings(broken.needed ? 1 : 0);
        ASSERT_EQ(1u, found.count(broken.id));
        const auto& finding = found.at(broken.id);
        EXPECT_EQ(broken.state, finding["condition"]) << finding;
        EXPECT_EQ(broken.needed, finding["needed"]) << finding;
        EXPECT_THAT(finding["text"].get<std::string>(), HasSubstr(broken.why));
        EXPECT_TRUE(finding["remedy"].is_string()) << "what to do is told";
        // What hangs on it is not looked at; everything else is as it was.
        for (const auto& [id, state] : notOk(found))
            EXPECT_TRUE(id == broken.id || id == "viewer" || state == "unknown" ||
                        (broken.id == "log-folder" && id == "current-logs") ||
                        (broken.id == "registry.server-folder" && id == "catalogue") ||
                        (broken.id == "registry.log-folder" && id == "log-folder") ||
                        (broken.id == "registry.event-logs" && id == "registry.event-sources") ||
                        (broken.id == "definitions.components" && id == "catalogue.components"))
                << id << " " << state;
        const Outcome tool = run(broken.command);
        EXPECT_EQ(broken.status, tool.status) << tool.out << tool.err;
        EXPECT_THAT(tool.out + tool.err, HasSubstr(broken.told));
    }
}

TEST_F(Doctor, SaysWhatCouldNotBeLookedAtWhereTheServerCantBeOpened)
{
    write(site / "site.ini", "rubbish\n");
    const Outcome outcome = run({"doctor"});
    EXPECT_EQ(1, outcome.status);
    EXPECT_THAT(outcome.out, testing::MatchesRegex("State .*\ndamaged  Server  The server can't be "
                                                   "opened: site.ini line 1.*\n\nWhat to do\n  "
                                                   "Server: Mend the file.*\n"));
    EXPECT_THAT(outcome.err, testing::MatchesRegex("orvandiag: 1 needed thing is not in order, and "
                                                   "[0-9]+ needed things could not be looked "
                                                   "at\n"));
}

TEST_F(Doctor, TellsAFolderThatIsNoSite)
{
    fs::remove_all(site);
    for (const bool there : {false, true}) {
        if (there) fs::create_directory(site);
        const Outcome outcome = runJson({"doctor"});
        EXPECT_EQ(1, outcome.status);
        EXPECT_EQ("server", outcome.json()[0]["check"]);
        EXPECT_EQ("missing", outcome.json()[0]["condition"]);
        EXPECT_EQ(ids.size(), outcome.json().size());
    }
}

TEST_F(Doctor, WaitsForADatabaseThatAnotherHoldsOnceAndNoLongerThanTheTool)
{
    // The lock is let go with the shell's input.
    const std::string hold = "sqlite3 '" + (site / "OrvanDirDb.sqlite").string() +
                             "' 'BEGIN EXCLUSIVE' '.shell echo held; sleep 25' > '" +
                             (folder / "held").string() + "' & echo $!";
    const Outcome holder =
        runProgram({"sh", "-c",
                    hold + "; while ! grep -q held '" + (folder / "held").string() +
                        "' 2>/dev/null; do sleep 0.05; done"});
    ASSERT_EQ(0, holder.status);
    const auto begin = std::chrono::steady_clock::now();
    const Outcome outcome = runJson({"doctor"});
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(1, outcome.status);
    EXPECT_LT(took, std::chrono::seconds(16));
    for (const auto& finding : outcome.json())
        if (finding["check"] == "database") {
            EXPECT_EQ("unusable", finding["condition"]);
            EXPECT_THAT(finding["text"].get<std::string>(), HasSubstr("did not let go in time"));
        }
    runProgram({"sh", "-c", "kill " + holder.out});
}

TEST_F(Doctor, IsNotMisledByWords)
{
    EXPECT_EQ(2, run({"doctor", "CallFlow"}).status);
    EXPECT_EQ(0, run({"doctor", "--help"}).status);
}

} // namespace
