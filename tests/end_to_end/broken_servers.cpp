#include "end_to_end/broken_servers.h"

#include "end_to_end/program.h"

#include <gtest/gtest.h>

#include <sstream>

namespace fs = std::filesystem;

void BreakableServer::sql(const std::string& statement) const
{
    const Outcome shell = runProgram({"sqlite3", (site / "OrvanDirDb.sqlite").string(), statement});
    EXPECT_EQ(0, shell.status) << shell.err;
}

void BreakableServer::withoutKeys(const std::string& part) const
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

void BreakableServer::withoutLine(const std::string& head, const std::string& instead) const
{
    std::istringstream lines(read(site / "registry.reg"));
    std::string kept;
    for (std::string line; std::getline(lines, line);)
        kept += line.starts_with(head) ? instead : line + "\n";
    write(site / "registry.reg", kept);
}

fs::path BreakableServer::catalogue() const
{
    return drive("KelmaOrvan/GuiResources/Resources/ENU/DiagnosticGrids_ENU.xml");
}

namespace {

const std::vector<BrokenServer> broken = {
    {"no value of the server's folder",
     [](const BreakableServer& server) { server.withoutLine("\"InstalledFolderPath\""); },
     "registry.server-folder",
     "missing",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read",
     "InstalledFolderPath"},
    {"the server's folder is elsewhere",
     [](const BreakableServer& server) {
         server.withoutLine("\"InstalledFolderPath\"", "\"InstalledFolderPath\"=\"C:\\\\Gone\"\n");
     },
     "registry.server-folder",
     "missing",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read",
     "C:\\Gone"},
    {"no version",
     [](const BreakableServer& server) { server.withoutLine("\"MajorVersion\""); },
     "registry.version",
     "missing",
     false,
     {"status"},
     0,
     "Server version   0."},
    {"a version that is none",
     [](const BreakableServer& server) {
         server.withoutLine("\"MajorVersion\"", "\"MajorVersion\"=dword:00010000\n");
     },
     "registry.version",
     "damaged",
     false,
     {"status"},
     0,
     "Server version   0."},
    {"no log folder named",
     [](const BreakableServer& server) { server.withoutLine("\"Output Path\""); },
     "registry.log-folder",
     "missing",
     true,
     {"logs", "KoCSMgr"},
     0,
     "is not there"},
    {"a log folder whose name is too long",
     [](const BreakableServer& server) {
         server.withoutLine("\"Output Path\"",
                            "\"Output Path\"=\"C:\\\\" + std::string(2000, 'x') + "\"\n");
     },
     "registry.log-folder",
     "damaged",
     true,
     {"logs", "KoCSMgr"},
     0,
     "is not there"},
    {"no processes",
     [](const BreakableServer& server) { server.withoutKeys("RoLogMgr\\Process"); },
     "registry.processes",
     "missing",
     true,
     {"logs", "KoCSMgr"},
     1,
     "no process"},
    {"no key for the signals",
     [](const BreakableServer& server) { server.withoutKeys("BroadCast"); },
     "registry.signals",
     "missing",
     true,
     {"cycle"},
     1,
     "RoLogMgr\\BroadCast"},
    {"no event logs",
     [](const BreakableServer& server) { server.withoutKeys("EventLog"); },
     "registry.event-logs",
     "missing",
     false,
     {"gather", "logs", "--event-log", "System"},
     1,
     "System"},
    {"no event sources",
     [](const BreakableServer& server) { server.withoutKeys("EventLog\\Application\\"); },
     "registry.event-sources",
     "missing",
     false,
     {"event-language"},
     0,
     "Current          \n"},
    {"a damaged registry",
     [](const BreakableServer& server) {
         server.write(server.site / "registry.reg",
                      server.read(server.site / "registry.reg") + "rubbish\n");
     },
     "server",
     "damaged",
     true,
     {"status"},
     1,
     "registry.reg line",
     "registry.reg line"},
    {"damaged settings of the site",
     [](const BreakableServer& server) { server.write(server.site / "site.ini", "rubbish\n"); },
     "server",
     "damaged",
     true,
     {"status"},
     1,
     "site.ini line 1",
     "site.ini line 1"},
    {"no database",
     [](const BreakableServer& server) { fs::remove(server.site / "OrvanDirDb.sqlite"); },
     "database",
     "missing",
     true,
     {"flags"},
     1,
     "cannot connect to the server's database"},
    {"a damaged database",
     [](const BreakableServer& server) {
         server.write(server.site / "OrvanDirDb.sqlite", std::string(9000, 'x'));
     },
     "database",
     "damaged",
     true,
     {"flags"},
     1,
     "file is not a database"},
    {"a driver that is not there",
     [](const BreakableServer& server) {
         server.write(server.site / "site.ini", server.read(server.site / "site.ini") +
                                                    "\n[database]\nodbc = Driver=None at all\n");
     },
     "database",
     "unusable",
     true,
     {"flags"},
     1,
     "No driver on this machine"},
    {"no view of the flags",
     [](const BreakableServer& server) { server.sql("DROP VIEW vw_LoggerDiagnosticGrid"); },
     "database.flags",
     "missing",
     true,
     {"flags"},
     1,
     "no such table"},
    {"a view of the flags without a column",
     [](const BreakableServer& server) {
         server.sql("DROP VIEW vw_LoggerDiagnosticGrid; CREATE VIEW vw_LoggerDiagnosticGrid AS "
                    "SELECT Name, ObjectId, Flags FROM tbl_LoggerDiagnosticGrid");
     },
     "database.flags",
     "damaged",
     true,
     {"flags"},
     1,
     "DefaultFlags"},
    {"a view of the flags without a row",
     [](const BreakableServer& server) { server.sql("DELETE FROM tbl_LoggerDiagnosticGrid"); },
     "database.flags",
     "missing",
     true,
     {"flags", "CallFlow"},
     1,
     "no component"},
    {"a flag word that is none",
     [](const BreakableServer& server) {
         server.sql("DROP VIEW vw_LoggerDiagnosticGrid; CREATE VIEW vw_LoggerDiagnosticGrid AS "
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
     [](const BreakableServer& server) { server.sql("DROP VIEW csp_LoggerDiagnosticGridModify"); },
     "database.change-flags",
     "missing",
     true,
     {"micro", "set", "--on", "CallFlow:3"},
     1,
     "csp_LoggerDiagnosticGridModify"},
    {"a procedure for the flags without a parameter",
     [](const BreakableServer& server) {
         server.sql(
             "DROP VIEW csp_LoggerDiagnosticGridModify; CREATE VIEW "
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
     [](const BreakableServer& server) {
         server.sql("DROP TRIGGER csp_LoggerDiagnosticGridModify_execute");
     },
     "database.change-flags",
     "damaged",
     true,
     {"micro", "set", "--on", "CallFlow:3"},
     1,
     "",
     "trigger"},
    {"no view of the settings",
     [](const BreakableServer& server) { server.sql("DROP VIEW vw_ConfigurationValue"); },
     "database.settings",
     "missing",
     true,
     {"settings"},
     1,
     "no such table"},
    {"no row of a setting",
     [](const BreakableServer& server) {
         server.sql("DELETE FROM tbl_ConfigurationValue WHERE FullName LIKE '%MegabytesSaved'");
     },
     "database.settings",
     "missing",
     true,
     {"settings"},
     1,
     "the log settings can't be read",
     "MaxDiagnosticMegabytesSaved"},
    {"a setting that is no number",
     [](const BreakableServer& server) {
         server.sql("UPDATE tbl_ConfigurationValue SET Value = 'x' WHERE FullName LIKE "
                    "'%MegabytesSaved'");
     },
     "database.settings",
     "missing",
     true,
     {"settings"},
     1,
     "the log settings can't be read"},
    {"no procedure for the settings",
     [](const BreakableServer& server) { server.sql("DROP VIEW csp_ConfigurationModify"); },
     "database.change-settings",
     "missing",
     true,
     {"settings", "--max-megabytes", "300"},
     1,
     "csp_ConfigurationModify"},
    {"no catalogue",
     [](const BreakableServer& server) { fs::remove_all(server.drive("KelmaOrvan/GuiResources")); },
     "catalogue",
     "missing",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read"},
    {"a damaged catalogue",
     [](const BreakableServer& server) { server.write(server.catalogue(), "<Diag"); },
     "catalogue",
     "damaged",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read"},
    {"a catalogue of something else",
     [](const BreakableServer& server) { server.write(server.catalogue(), "<DiagnosticGrids/>"); },
     "catalogue",
     "damaged",
     true,
     {"micro", "CallFlow"},
     0,
     "no level texts can be read"},
    {"a component that the catalogue does not tell of",
     [](const BreakableServer& server) {
         server.sql("INSERT INTO tbl_LoggerDiagnosticGrid VALUES ('{1}', 'Novelty', 0, 0)");
     },
     "catalogue.components",
     "missing",
     false,
     {"micro", "Novelty"},
     0,
     "",
     "Novelty"},
    {"no definitions",
     [](const BreakableServer& server) {
         fs::remove_all(server.drive("OrvanDiagnostics/ZMKXML"));
         fs::create_directory(server.drive("OrvanDiagnostics/ZMKXML"));
     },
     "definitions",
     "missing",
     true,
     {"macro", "set", "--on", "Call Flow - Transfers"},
     1,
     "no macro trace"},
    {"a damaged definition",
     [](const BreakableServer& server) {
         server.write(server.drive("OrvanDiagnostics/ZMKXML/HTCallFlow.xml"), "<GA");
     },
     "definitions",
     "damaged",
     true,
     {"macro"},
     0,
     "HTCallFlow.xml is passed over",
     "HTCallFlow.xml"},
    {"a component that a macro trace names and nobody has",
     [](const BreakableServer& server) {
         server.sql("DELETE FROM tbl_LoggerDiagnosticGrid WHERE Name = 'CallFlow'");
     },
     "definitions.components",
     "missing",
     false,
     {"flags", "CallFlow"},
     1,
     "no component",
     "CallFlow"},
    {"no log folder",
     [](const BreakableServer& server) { fs::remove_all(server.drive("KelmaOrvan/Logs")); },
     "log-folder",
     "missing",
     true,
     {"logs", "KoCSMgr"},
     0,
     "is not there"},
    {"no current log of a process",
     [](const BreakableServer& server) {
         fs::remove(server.drive("KelmaOrvan/Logs/" + server.currentLog()));
     },
     "current-logs",
     "missing",
     true,
     {"gather", "standard"},
     1,
     "the current log of KoCSMgr",
     "KoCSMgr"},
    {"a damaged blank database",
     [](const BreakableServer& server) {
         server.write(server.drive("OrvanDiagnostics/blankWPNDB.mdb"), "x");
     },
     "trace-database",
     "damaged",
     true,
     {"gather", "frame", "--from", "2025-02-19 14:00", "--hours", "2"},
     1,
     "the trace database is not complete"},
    {"a folder in the place of the blank database",
     [](const BreakableServer& server) {
         fs::create_directory(server.drive("OrvanDiagnostics/blankWPNDB.mdb"));
     },
     "trace-database",
     "missing",
     true,
     {"gather", "frame", "--from", "2025-02-19 14:00", "--hours", "2"},
     1,
     "no trace database was made"},
    {"a folder in the place of the cabinet maker",
     [](const BreakableServer& server) {
         fs::create_directory(server.drive("OrvanDiagnostics/cabmaker.exe"));
     },
     "cabinet-maker",
     "missing",
     true,
     {"gather", "frame", "--from", "2025-02-19 14:00", "--hours", "2"},
     1,
     "abinet"},
    {"a viewer of the site's own",
     [](const BreakableServer& server) {
         fs::create_directory(server.drive("KelmaOrvan/Tools"));
         server.write(server.drive("KelmaOrvan/Tools/Viewer.exe"), "MZ");
     },
     "viewer",
     "unusable",
     false,
     {"status"},
     0,
     "connected",
     "not a program of this machine"},
    {"no viewer named",
     [](const BreakableServer& server) { server.withoutKeys("Diagnostic Viewer"); },
     "viewer",
     "missing",
     false,
     {"status"},
     0,
     "connected",
     "names no viewer"},
    {"a damaged language",
     [](const BreakableServer& server) {
         server.write(server.drive("OrvanDiagnostics/ZMKbrandingres_DEU.txt"), "rubbish");
     },
     "languages",
     "damaged",
     false,
     {"language"},
     0,
     "",
     "DEU"},
};

} // namespace

const std::vector<BrokenServer>& brokenServers()
{
    return broken;
}
