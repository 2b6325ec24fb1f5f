#include "core/localisation.h"
#include "shell/initialize.h"
#include "shell/shell_fixture.h"
#include "support/fits_pattern.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using SnapInLifecycle = ShellTest;

std::vector<std::int32_t> reportedIds(const TestTool& tool)
{
    std::vector<std::int32_t> ids;
    for (const auto& report : tool.eventReporter.reports()) ids.push_back(report.id);
    return ids;
}

} // namespace

TEST_F(SnapInLifecycle, GivesTheConsoleItsIdentity)
{
    tool.module.major = 4;
    tool.module.minor = 3;
    tool.module.build = 10;

    snapIn.SnapIn_Initialize();

    EXPECT_EQ("Kelma Orvan Diagnostics", console.displayName());
    EXPECT_EQ("Kelma Orvan Diagnostics", node("Static Node").displayName());
    EXPECT_EQ("Kelma Systems, Inc.", console.identity().provider);
    EXPECT_EQ("Kelma Orvan Diagnostics MMC Snap-in\r\n"
              "Copyright \xC2\xA9 Kelma Systems, Inc.  All rights reserved.\r\n"
              "Kelma, Orvan and Kelma Orvan are trademarks of Kelma Systems, Inc.",
              console.identity().description);
}

TEST_F(SnapInLifecycle, LooksTheUsersLanguageUpBeforeItsFirstText)
{
    struct Case {
        const char* because;
        std::int32_t language;
        const char* displayName;
    };
    const Case cases[] = {
        {"a language with its library", 1036,
         "Diagnostics en fran\xC3\xA7"
         "ais"},
        {"one without", 1041, "Kelma Orvan Diagnostics"},
        {"one that the table of languages lacks", 1028, "Kelma Orvan Diagnostics"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        tool.context.language.g_lngCurrentLanguage = 0;
        tool.languages.userDefault = c.language;
        tool.languages.with("C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll",
                            {{1015, "Diagnostics en fran\xC3\xA7"
                                    "ais"}});

        snapIn.SnapIn_Initialize();

        EXPECT_EQ(c.displayName, console.displayName());
        EXPECT_EQ(c.language, tool.context.language.g_lngCurrentLanguage);
    }
}

TEST_F(SnapInLifecycle, ShowsItsVersionWithALeadingBlankAndSingleBlanksAroundBuild)
{
    struct Case {
        const char* because;
        int major;
        int minor;
        int revision;
        const char* expected;
    };
    const Case cases[] = {
        {"the leading blank keeps the place of a sign", 4, 3, 10, " 4.3 Build 10"},
        {"zeros are written", 0, 0, 0, " 0.0 Build 0"},
        {"more digits need no more blanks", 12, 10, 12345, " 12.10 Build 12345"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        tool.module.major = c.major;
        tool.module.minor = c.minor;
        tool.module.build = c.revision;

        snapIn.SnapIn_Initialize();

        EXPECT_EQ(c.expected, console.identity().version);
    }
}

TEST_F(SnapInLifecycle, TakesEachPartOfTheServersVersionByItself)
{
    struct Case {
        const char* because;
        std::vector<int> version;
        bool extended;
    };
    const Case cases[] = {
        {"a server without values logs the short form", {}, false},
        {"2.0 came before the fields", {2, 0, 0, 0}, false},
        {"2.1 has them", {2, 1, 0, 0}, true},
        {"a minor version of 0 counts against 3.0", {3, 0, 0, 0}, false},
        {"a later minor version has them", {4, 1, 0, 0}, true},
        {"1.9 came before", {1, 9, 9, 9}, false},
        {"a negative release counts against it", {4, 1, -1, 0}, false},
        {"so does a negative build", {4, 1, 0, -1}, false},
    };
    const char* const names[] = {"MajorVersion", "MinorVersion", "ReleaseVersion", "BuildVersion"};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool fresh;
        Console itsConsole(definition);
        snapinOrvanDiagnostics its(fresh.context, itsConsole);
        for (std::size_t part = 0; part < c.version.size(); ++part)
            fresh.registry.withNumber(baseKey, names[part], c.version[part]);

        its.SnapIn_Initialize();

        EXPECT_EQ(c.extended, fresh.context.g_bExtendedLogFields);
    }
}

TEST_F(SnapInLifecycle, FillsTheGlobalContextOnLoading)
{
    tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan\\");

    snapIn.SnapIn_Load();

    EXPECT_EQ("C:\\Orvan\\", tool.context.g_strInstalledFolder);
    EXPECT_EQ("C:\\Logs", tool.context.g_strLogFolder);
    EXPECT_EQ("C:\\OrvanDiagnostics\\ZMKXML", tool.context.g_strMacroTraceFolder);
    EXPECT_EQ(1, tool.context.g_bitMasks[0]);
    EXPECT_EQ(FakeEventReporter::toolHandle, tool.context.g_eventLogHandle);
    EXPECT_FALSE(tool.context.g_bDebugMode);
    EXPECT_NE(0, tool.context.g_timeZone.daylightDate.month) << "the time zone was read";
    EXPECT_EQ(1, tool.database.state());
    EXPECT_NE(nullptr, tool.context.g_domMacroTraces->documentElement());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(SnapInLifecycle, ReachesTheGridCatalogueAndItsReportWithTheDatabaseDown)
{
    tool.database.unreachable();
    tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");
    tool.files.with("C:\\Orvan\\GuiResources\\Resources\\ENU\\DiagnosticGrids_ENU.xml",
                    "<DiagnosticGrids/>");

    snapIn.SnapIn_Load();

    EXPECT_THAT(tool.failures("[mdlInitialize]initGlobalVariables"),
                ElementsAre("Cannot connect to database"));
    EXPECT_NE(nullptr, tool.context.g_domDiagnosticGrids->documentElement());
    EXPECT_THAT(reportedIds(tool), ElementsAre(10001, 10002));
}

TEST_F(SnapInLifecycle, TakesAnOpenConnectionForNone)
{
    tool.database.opened();

    snapIn.SnapIn_Load();

    EXPECT_TRUE(tool.logged("Cannot connect to database"));
    EXPECT_EQ(1, tool.database.state());
}

TEST_F(SnapInLifecycle, BuildsTheMacroTracesBeforeItsReporterAndDatabaseAreThere)
{
    tool.files.with("C:\\OrvanDiagnostics\\ZMKXML\\HTa.xml", "<GA NAME='A'><TRACE NAME='T'/></GA>");
    tool.registry.withNumber(std::string(toolKey) + "\\A\\T", "Enabled", 1);
    tool.database.unreachable();
    tool.eventReporter.missing();

    snapIn.SnapIn_Load();

    const auto trace = tool.context.g_domMacroTraces->selectSingleNode("HYBRIDTRACES/GA/TRACE");
    ASSERT_NE(nullptr, trace);
    EXPECT_EQ("1", trace->attribute("Enabled"));
}

TEST_F(SnapInLifecycle, SetsTheEventReporterUpBeforeItsFirstReport)
{
    snapIn.SnapIn_Load();

    EXPECT_THAT(tool.eventReporter.calls(),
                ElementsAre("startUp", "completeStartUp", "registerTool", "report", "report"));
    EXPECT_EQ("OrvanDiagnostics", tool.eventReporter.registeredName());
    EXPECT_THAT(tool.eventReporter.reports(),
                ElementsAre(
                    FakeEventReporter::Report{
                        "OrvanDiagnosticTool_MC", FakeEventReporter::toolHandle, 0, 10001, {}},
                    FakeEventReporter::Report{
                        "OrvanDiagnosticTool_MC", FakeEventReporter::toolHandle, 0, 10002, {}}));
}

TEST_F(SnapInLifecycle, TakesTheDebugModeOnceAtStartUp)
{
    tool.module.developmentHost = true;
    snapIn.SnapIn_Load();
    tool.module.developmentHost = false;

    EXPECT_TRUE(tool.context.g_bDebugMode);
}

TEST_F(SnapInLifecycle, LeavesTheFoldersEmptyWhenTheServerStoredNone)
{
    TestTool bare;
    Console itsConsole(definition);
    snapinOrvanDiagnostics its(bare.context, itsConsole);

    its.SnapIn_Load();

    EXPECT_EQ("", bare.context.g_strInstalledFolder);
    EXPECT_EQ("", bare.context.g_strLogFolder);
    EXPECT_THAT(reportedIds(bare), ElementsAre(10001, 10002));
}

TEST_F(SnapInLifecycle, GoesOnPastAnEventReporterThatTheServerLacks)
{
    tool.eventReporter.missing();

    snapIn.SnapIn_Load();

    EXPECT_THAT(
        tool.failures("[mdlInitialize]initGlobalVariables"),
        testing::Each(FitsPattern("Err\\.Number = 429 Err\\.Description = .* Line: [0-9]+")));
    EXPECT_EQ(4u, tool.failures("[mdlInitialize]initGlobalVariables").size());
    EXPECT_EQ(1u, tool.failures("[snapinOrvanDiagnostics]SnapIn_Load").size());
    EXPECT_NE(0, tool.context.g_timeZone.daylightDate.month) << "later steps ran";
}

TEST_F(SnapInLifecycle, SkipsTheRestOfStartUpOnItsEleventhError)
{
    tool.module.developmentHost = true;
    tool.eventReporter.missing();
    tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");

    mdlInitialize::initGlobalVariables(tool.context);

    const Texts failures = tool.failures("[mdlInitialize]initGlobalVariables");
    ASSERT_EQ(12u, failures.size());
    EXPECT_THAT(failures[9], testing::HasSubstr(" Line: "));
    EXPECT_THAT(failures[10], testing::StartsWith("Err.Number = 429 "));
    EXPECT_THAT(failures[10], testing::Not(testing::HasSubstr(" Line: ")));
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlInitialize]initGlobalVariables",
              failures[11]);
    EXPECT_EQ(1, tool.context.g_bitMasks[0]) << "what stands before the event reporter is done";
    EXPECT_NE(nullptr, tool.context.g_domMacroTraces);
    EXPECT_FALSE(tool.context.g_bDebugMode) << "what stands behind it is not";
    EXPECT_EQ(0, tool.context.g_timeZone.daylightDate.month);
    EXPECT_EQ(0, tool.database.state());
    EXPECT_EQ(nullptr, tool.context.g_domDiagnosticGrids);
    EXPECT_FALSE(tool.logged("Exiting [mdlInitialize]initGlobalVariables_0"));
}

TEST_F(SnapInLifecycle, GoesOnWithTheOldFolderWhenTheSettingChanges)
{
    load();

    tool.registry.withText(logManagerKey, "Output Path", "C:\\Elsewhere");
    console.refresh();

    EXPECT_EQ("C:\\Logs", tool.context.g_strLogFolder);
}

TEST_F(SnapInLifecycle, LogsItsRoutinesInTheirOrder)
{
    load();

    Texts entered;
    for (const auto& line : tool.logLines())
        if (line.message.rfind("Entering ", 0) == 0) entered.push_back(line.message.substr(9));
    const auto place = [&](const std::string& routine) {
        return std::find(entered.begin(), entered.end(), routine + "_0") - entered.begin();
    };
    const auto missing = static_cast<std::ptrdiff_t>(entered.size());
    const auto initialize = place("[snapinOrvanDiagnostics]SnapIn_Initialize");
    const auto version = place("[mdlOrvan]getVersion");
    const auto loaded = place("[snapinOrvanDiagnostics]SnapIn_Load");
    const auto globals = place("[mdlInitialize]initGlobalVariables");
    const auto macroTraces = place("[mdlTraces]initMacroTraces");
    const auto connection = place("[mdlOrvanDatabase]openOrvanDB");
    const auto grids = place("[mdlDiagnosticGrids]openDiagGrids");
    EXPECT_EQ(0, initialize) << "the first routine that logs makes the log";
    EXPECT_LT(initialize, version);
    EXPECT_LT(version, loaded);
    EXPECT_LT(loaded, globals);
    EXPECT_LT(globals, macroTraces);
    EXPECT_LT(macroTraces, connection);
    EXPECT_LT(connection, grids);
    EXPECT_LT(grids, missing);
}

TEST_F(SnapInLifecycle, ReportsItsEndAndChangesNothingElse)
{
    load();
    const auto written = tool.registry.written();

    console.unload();

    EXPECT_EQ(10003, reportedIds(tool).back());
    EXPECT_EQ(written, tool.registry.written());
}

TEST_F(SnapInLifecycle, TellsTheConsoleItsHelpFile)
{
    tool.languages.userDefault = 1036;
    tool.files.with("C:\\OrvanDiagnostics\\OrvanDiagnosticTool_FRA.chm");
    snapIn.SnapIn_Initialize();
    EXPECT_EQ("C:\\OrvanDiagnostics\\OrvanDiagnosticTool_FRA.chm", console.identity().helpFileName);
}

TEST_F(SnapInLifecycle, PutsTheFirstEventLogLanguageBackOnUnloading)
{
    const std::string sources = "System\\CurrentControlSet\\Services\\EventLog\\Application\\";
    for (const char* name : {"EventMessageFile", "CategoryMessageFile"})
        tool.registry.withText(sources + "Server", name, "C:\\Localize\\Messaging\\JPN\\x.dll")
            .withText(sources + "Other", name, "C:\\Windows\\x.dll");
    load();
    tool.registry.withText(toolKey, "OriginalEventLogLanguage", "ENU");

    console.unload();

    for (const char* name : {"EventMessageFile", "CategoryMessageFile"}) {
        EXPECT_EQ("C:\\Localize\\Messaging\\ENU\\x.dll",
                  tool.registry.text(sources + "Server", name));
        EXPECT_EQ("C:\\Windows\\x.dll", tool.registry.text(sources + "Other", name));
    }
    EXPECT_EQ("ENU", tool.registry.text(toolKey, "OriginalEventLogLanguage")) << "it stays";
    EXPECT_EQ(10003, reportedIds(tool).back());
}

TEST_F(SnapInLifecycle, AnAbsentFirstEventLogLanguageChangesNothingOnUnloading)
{
    tool.registry.withText("System\\CurrentControlSet\\Services\\EventLog\\Application\\Server",
                           "EventMessageFile", "C:\\Localize\\Messaging\\JPN\\x.dll");
    load();
    ASSERT_FALSE(tool.registry.has(toolKey, "OriginalEventLogLanguage"));
    const auto written = tool.registry.written();

    console.unload();

    EXPECT_EQ(written, tool.registry.written());
    EXPECT_FALSE(tool.logged("Entering [mdlLanguage]"));
    EXPECT_FALSE(tool.registry.has(toolKey, "OriginalEventLogLanguage"));
    EXPECT_EQ(10003, reportedIds(tool).back());
}

TEST_F(SnapInLifecycle, AnEmptyFirstEventLogLanguageChangesNothingOnUnloading)
{
    tool.registry.withText("System\\CurrentControlSet\\Services\\EventLog\\Application\\Server",
                           "EventMessageFile", "C:\\Localize\\Messaging\\JPN\\x.dll");
    load();
    tool.registry.withText(toolKey, "OriginalEventLogLanguage", "");
    const auto written = tool.registry.written();

    console.unload();

    EXPECT_EQ(written, tool.registry.written());
    EXPECT_FALSE(tool.logged("Entering [mdlLanguage]"));
    EXPECT_EQ(10003, reportedIds(tool).back());
}

TEST_F(SnapInLifecycle, LetsAnErrorOfUnloadingReachTheConsole)
{
    load();
    tool.eventReporter.failing(429);

    EXPECT_EQ(429, errorOf([&] { console.unload(); }));
}

TEST_F(SnapInLifecycle, PutsWhatThePanesHoldIntoAnotherLanguage)
{
    tool.languages.with("C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll",
                        {{1015, "Diagnostics"}, {1014, "Tâches"}, {1042, "Nom"}, {1103, "Tracé"}});
    withProcess("KoCSMgr");
    withCurrentLog("KoCSMgr", "diag_KoCSMgr_20250219_144115.txt",
                   "14:41:15:089 (Log,2402,LogManager,2) One line\r\n");
    load();
    const auto speak = [&](std::int32_t language) {
        tool.context.language.g_lngCurrentLanguage = language;
        InitalizeLanguages(tool.context);
        snapIn.showLanguage();
    };

    speak(1036);
    EXPECT_EQ("Diagnostics", node("Static Node").displayName());
    EXPECT_EQ("Tâches", view().selectedScopePaneItem().resultView().taskPad().title);

    console.expand(processes());
    view().select(node("KoCSMgr"));
    EXPECT_EQ("Nom", list().column(3).text);
    speak(1033);
    EXPECT_EQ("File Name", list().column(3).text);
    EXPECT_EQ(1, list().itemCount()) << "rows stay";

    view().select(node("diag_KoCSMgr_20250219_144115.txt"));
    speak(1036);
    EXPECT_EQ("Tracé", list().column(7).text);
    EXPECT_EQ(1, list().itemCount()) << "rows stay";
}
