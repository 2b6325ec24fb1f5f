#include "end_to_end/sample_site.h"
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
struct Doctor : SampleSite {
    using SampleSite::currentLog;
    using SampleSite::drive;
    using SampleSite::read;
    using SampleSite::site;
    using SampleSite::write;

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

    void sql(const std::string& statement) const
    {
        const Outcome shell =
            runProgram({"sqlite3", (site / "OrvanDirDb.sqlite").string(), statement});
        EXPECT_EQ(0, shell.status) << shell.err;
    }

    /// Takes the keys whose names have a text in them out of the registry.
    void withoutKeys(const std::string& part) const
    {
        std::istringstream lines(read(site / "registry.reg"));
        std::string kept;
        bool keeps = true;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("[")) keeps = line.find(part) == std::string::npos;
            if (keeps) kept += line + "\n";
        }
        write(site / "registry.reg", kept);
    }

    /// Takes the lines that begin with a text out of the registry, or puts another in their place.
    void withoutLine(const std::string& head, const std::string& instead = {}) const
    {
        std::istringstream lines(read(site / "registry.reg"));
        std::string kept;
        for (std::string line; std::getline(lines, line);)
            kept += line.starts_with(head) ? instead : line + "\n";
        write(site / "registry.reg", kept);
    }

    fs::path catalogue() const
    {
        return drive("KelmaOrvan/GuiResources/Resources/ENU/DiagnosticGrids_ENU.xml");
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

/// Something that is broken in a site, what doctor says of it, and what the tool does about it.
struct Broken {
    const char* what;
    void (*breakIt)(const Doctor& test);
    std::string id;
    std::string state;
    bool needed;
    Words command;        ///< of the tool, which is hindered by it
    int status;           ///< how that ends
    std::string told;     ///< what that says on standard error or output
    std::string why = {}; ///< a part of doctor's own sentence
};

const std::vector<Broken> brokenThings = {
    {"no value of the server's folder",
     [](const Doctor& test) { test.withoutLine("\"InstalledFolderPath\""); },
     "registry.server-folder",
     "missing",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read",
     "InstalledFolderPath"},
    {"the server's folder is elsewhere",
     [](const Doctor& test) {
         test.withoutLine("\"InstalledFolderPath\"", "\"InstalledFolderPath\"=\"C:\\\\Gone\"\n");
     },
     "registry.server-folder",
     "missing",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read",
     "C:\\Gone"},
    {"no version",
     [](const Doctor& test) { test.withoutLine("\"MajorVersion\""); },
     "registry.version",
     "missing",
     false,
     {"status"},
     0,
     "Server version   0."},
    {"a version that is none",
     [](const Doctor& test) {
         test.withoutLine("\"MajorVersion\"", "\"MajorVersion\"=dword:00010000\n");
     },
     "registry.version",
     "damaged",
     false,
     {"status"},
     0,
     "Server version   0."},
    {"no log folder named",
     [](const Doctor& test) { test.withoutLine("\"Output Path\""); },
     "registry.log-folder",
     "missing",
     true,
     {"logs", "KoCSMgr"},
     0,
     "is not there"},
    {"a log folder whose name is too long",
     [](const Doctor& test) {
         test.withoutLine("\"Output Path\"",
                          "\"Output Path\"=\"C:\\\\" + std::string(2000, 'x') + "\"\n");
     },
     "registry.log-folder",
     "damaged",
     true,
     {"logs", "KoCSMgr"},
     0,
     "is not there"},
    {"no processes",
     [](const Doctor& test) { test.withoutKeys("RoLogMgr\\Process"); },
     "registry.processes",
     "missing",
     true,
     {"logs", "KoCSMgr"},
     1,
     "no process"},
    {"no key for the signals",
     [](const Doctor& test) { test.withoutKeys("BroadCast"); },
     "registry.signals",
     "missing",
     true,
     {"cycle"},
     1,
     "RoLogMgr\\BroadCast"},
    {"no event logs",
     [](const Doctor& test) { test.withoutKeys("EventLog"); },
     "registry.event-logs",
     "missing",
     false,
     {"gather", "logs", "--event-log", "System"},
     1,
     "System"},
    {"no event sources",
     [](const Doctor& test) { test.withoutKeys("EventLog\\Application\\"); },
     "registry.event-sources",
     "missing",
     false,
     {"event-language"},
     0,
     "Current          \n"},
    {"a damaged registry",
     [](const Doctor& test) {
         test.write(test.site / "registry.reg",
                    test.read(test.site / "registry.reg") + "rubbish\n");
     },
     "server",
     "damaged",
     true,
     {"status"},
     1,
     "registry.reg line",
     "registry.reg line"},
    {"damaged settings of the site",
     [](const Doctor& test) { test.write(test.site / "site.ini", "rubbish\n"); },
     "server",
     "damaged",
     true,
     {"status"},
     1,
     "site.ini line 1",
     "site.ini line 1"},
    {"no database",
     [](const Doctor& test) { fs::remove(test.site / "OrvanDirDb.sqlite"); },
     "database",
     "missing",
     true,
     {"flags"},
     1,
     "cannot connect to the server's database"},
    {"a damaged database",
     [](const Doctor& test) {
         test.write(test.site / "OrvanDirDb.sqlite", std::string(9000, 'x'));
     },
     "database",
     "damaged",
     true,
     {"flags"},
     1,
     "file is not a database"},
    {"a driver that is not there",
     [](const Doctor& test) {
         test.write(test.site / "site.ini", test.read(test.site / "site.ini") +
                                                "\n[database]\nodbc = Driver=None at all\n");
     },
     "database",
     "unusable",
     true,
     {"flags"},
     1,
     "No driver on this machine"},
    {"no view of the flags",
     [](const Doctor& test) { test.sql("DROP VIEW vw_LoggerDiagnosticGrid"); },
     "database.flags",
     "missing",
     true,
     {"flags"},
     1,
     "no such table"},
    {"a view of the flags without a column",
     [](const Doctor& test) {
         test.sql("DROP VIEW vw_LoggerDiagnosticGrid; CREATE VIEW vw_LoggerDiagnosticGrid AS "
                  "SELECT Name, ObjectId, Flags FROM tbl_LoggerDiagnosticGrid");
     },
     "database.flags",
     "damaged",
     true,
     {"flags"},
     1,
     "DefaultFlags"},
    {"a view of the flags without a row",
     [](const Doctor& test) { test.sql("DELETE FROM tbl_LoggerDiagnosticGrid"); },
     "database.flags",
     "missing",
     true,
     {"flags", "CallFlow"},
     1,
     "no component"},
    {"a flag word that is none",
     [](const Doctor& test) {
         test.sql("DROP VIEW vw_LoggerDiagnosticGrid; CREATE VIEW vw_LoggerDiagnosticGrid AS "
                  "SELECT Name, ObjectId, 'x' AS Flags, DefaultFlags FROM "
                  "tbl_LoggerDiagnosticGrid");
     },
     "database.flags",
     "damaged",
     true,
     {"flags"},
     1,
     "Type mismatch",
     "AddressBook"},
    {"no procedure for the flags",
     [](const Doctor& test) { test.sql("DROP VIEW csp_LoggerDiagnosticGridModify"); },
     "database.change-flags",
     "missing",
     true,
     {"micro", "set", "--on", "CallFlow:3"},
     1,
     "csp_LoggerDiagnosticGridModify"},
    {"a procedure for the flags without a parameter",
     [](const Doctor& test) {
         test.sql("DROP VIEW csp_LoggerDiagnosticGridModify; CREATE VIEW "
                  "csp_LoggerDiagnosticGridModify AS SELECT 1 AS AuditAlias, 1 AS AuditComponent, "
                  "1 AS Name, 1 AS ObjectId");
     },
     "database.change-flags",
     "damaged",
     true,
     {"micro", "set", "--on", "CallFlow:3"},
     1,
     "",
     "@Flags"},
    {"a procedure for the flags that nothing stands behind",
     [](const Doctor& test) { test.sql("DROP TRIGGER csp_LoggerDiagnosticGridModify_execute"); },
     "database.change-flags",
     "damaged",
     true,
     {"micro", "set", "--on", "CallFlow:3"},
     1,
     "",
     "trigger"},
    {"no view of the settings",
     [](const Doctor& test) { test.sql("DROP VIEW vw_ConfigurationValue"); },
     "database.settings",
     "missing",
     true,
     {"settings"},
     1,
     "no such table"},
    {"no row of a setting",
     [](const Doctor& test) {
         test.sql("DELETE FROM tbl_ConfigurationValue WHERE FullName LIKE '%MegabytesSaved'");
     },
     "database.settings",
     "missing",
     true,
     {"settings"},
     1,
     "the log settings can't be read",
     "MaxDiagnosticMegabytesSaved"},
    {"a setting that is no number",
     [](const Doctor& test) {
         test.sql("UPDATE tbl_ConfigurationValue SET Value = 'x' WHERE FullName LIKE "
                  "'%MegabytesSaved'");
     },
     "database.settings",
     "missing",
     true,
     {"settings"},
     1,
     "the log settings can't be read"},
    {"no procedure for the settings",
     [](const Doctor& test) { test.sql("DROP VIEW csp_ConfigurationModify"); },
     "database.change-settings",
     "missing",
     true,
     {"settings", "--max-megabytes", "300"},
     1,
     "csp_ConfigurationModify"},
    {"no catalogue",
     [](const Doctor& test) { fs::remove_all(test.drive("KelmaOrvan/GuiResources")); },
     "catalogue",
     "missing",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read"},
    {"a damaged catalogue",
     [](const Doctor& test) { test.write(test.catalogue(), "<Diag"); },
     "catalogue",
     "damaged",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read"},
    {"a catalogue of something else",
     [](const Doctor& test) { test.write(test.catalogue(), "<DiagnosticGrids/>"); },
     "catalogue",
     "damaged",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read"},
    {"a component that the catalogue does not tell of",
     [](const Doctor& test) {
         test.sql("INSERT INTO tbl_LoggerDiagnosticGrid VALUES ('{1}', 'Novelty', 0, 0)");
     },
     "catalogue.components",
     "missing",
     false,
     {"micro", "Novelty"},
     0,
     "",
     "Novelty"},
    {"no definitions",
     [](const Doctor& test) {
         fs::remove_all(test.drive("OrvanDiagnostics/ZMKXML"));
         fs::create_directory(test.drive("OrvanDiagnostics/ZMKXML"));
     },
     "definitions",
     "missing",
     true,
     {"macro", "set", "--on", "Call Flow - Transfers"},
     1,
     "no macro trace"},
    {"a damaged definition",
     [](const Doctor& test) {
         test.write(test.drive("OrvanDiagnostics/ZMKXML/HTCallFlow.xml"), "<GA");
     },
     "definitions",
     "damaged",
     true,
     {"macro"},
     0,
     "HTCallFlow.xml is passed over",
     "HTCallFlow.xml"},
    {"a component that a macro trace names and nobody has",
     [](const Doctor& test) {
         test.sql("DELETE FROM tbl_LoggerDiagnosticGrid WHERE Name = 'CallFlow'");
     },
     "definitions.components",
     "missing",
     false,
     {"flags", "CallFlow"},
     1,
     "no component",
     "CallFlow"},
    {"no log folder",
     [](const Doctor& test) { fs::remove_all(test.drive("KelmaOrvan/Logs")); },
     "log-folder",
     "missing",
     true,
     {"logs", "KoCSMgr"},
     0,
     "is not there"},
    {"no current log of a process",
     [](const Doctor& test) { fs::remove(test.drive("KelmaOrvan/Logs/" + test.currentLog())); },
     "current-logs",
     "missing",
     true,
     {"gather", "standard"},
     1,
     "the current log of KoCSMgr",
     "KoCSMgr"},
    {"a damaged blank database",
     [](const Doctor& test) { test.write(test.drive("OrvanDiagnostics/blankWPNDB.mdb"), "x"); },
     "trace-database",
     "damaged",
     true,
     {"gather", "frame", "--from", "2025-02-19 14:00", "--hours", "2"},
     1,
     "the trace database is not complete"},
    {"a folder in the place of the blank database",
     [](const Doctor& test) {
         fs::create_directory(test.drive("OrvanDiagnostics/blankWPNDB.mdb"));
     },
     "trace-database",
     "missing",
     true,
     {"gather", "frame", "--from", "2025-02-19 14:00", "--hours", "2"},
     1,
     "no trace database was made"},
    {"a folder in the place of the cabinet maker",
     [](const Doctor& test) { fs::create_directory(test.drive("OrvanDiagnostics/cabmaker.exe")); },
     "cabinet-maker",
     "missing",
     true,
     {"gather", "frame", "--from", "2025-02-19 14:00", "--hours", "2"},
     1,
     "abinet"},
    {"a viewer of the site's own",
     [](const Doctor& test) {
         fs::create_directory(test.drive("KelmaOrvan/Tools"));
         test.write(test.drive("KelmaOrvan/Tools/Viewer.exe"), "MZ");
     },
     "viewer",
     "unusable",
     false,
     {"status"},
     0,
     "connected",
     "not a program of this machine"},
    {"no viewer named",
     [](const Doctor& test) { test.withoutKeys("Diagnostic Viewer"); },
     "viewer",
     "missing",
     false,
     {"status"},
     0,
     "connected",
     "names no viewer"},
    {"a damaged language",
     [](const Doctor& test) {
         test.write(test.drive("OrvanDiagnostics/ZMKbrandingres_DEU.txt"), "rubbish");
     },
     "languages",
     "damaged",
     false,
     {"language"},
     0,
     "",
     "DEU"},
};

TEST_F(Doctor, TellsOfEachThingThatIsBrokenAndOfWhatTheToolCannotDoThen)
{
    const fs::path whole = folder / "whole";
    fs::rename(site, whole);
    for (const Broken& broken : brokenThings) {
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
