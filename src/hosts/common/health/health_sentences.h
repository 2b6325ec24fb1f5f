#pragma once

#include <string_view>

/// The sentences about a server's health, for a host that translates them.
namespace healthSentences {

// What is looked at.
constexpr std::string_view server = "Server";
constexpr std::string_view serverFolder = "Registry: the server's folder";
constexpr std::string_view version = "Registry: the server's version";
constexpr std::string_view logFolderName = "Registry: the log folder";
constexpr std::string_view processes = "Registry: processes that write logs";
constexpr std::string_view signals = "Registry: signals to the log manager";
constexpr std::string_view eventLogs = "Registry: event logs";
constexpr std::string_view eventSources = "Registry: sources of events";
constexpr std::string_view database = "Database";
constexpr std::string_view flags = "Database: trace flags";
constexpr std::string_view changeFlags = "Database: changing trace flags";
constexpr std::string_view settings = "Database: log settings";
constexpr std::string_view changeSettings = "Database: changing log settings";
constexpr std::string_view catalogue = "Catalogue of trace levels";
constexpr std::string_view catalogueComponents = "Catalogue: components of the server";
constexpr std::string_view definitions = "Macro trace definitions";
constexpr std::string_view definitionComponents = "Macro traces: components of the server";
constexpr std::string_view logFolder = "Log folder";
constexpr std::string_view currentLogs = "Current logs";
constexpr std::string_view eventReporter = "Event reporter";
constexpr std::string_view rights = "Right to change the server";
constexpr std::string_view databaseRights = "Right to change the database";
constexpr std::string_view toolLog = "The tool's own log";
constexpr std::string_view space = "Free space";
constexpr std::string_view blankDatabase = "Blank trace database";
constexpr std::string_view cabinetMaker = "Cabinet maker";
constexpr std::string_view viewer = "Viewer";
constexpr std::string_view languages = "Interface languages";

// What was found.
constexpr std::string_view plain = "%1";
constexpr std::string_view canBeRead = "It can be read.";
constexpr std::string_view canBeStarted = "It can be started.";
constexpr std::string_view notLookedAt = "It could not be looked at: %1.";
constexpr std::string_view afterServer = "It was not looked at, as the server can't be opened.";
constexpr std::string_view afterDatabase = "It was not looked at, as the database can't be read.";
constexpr std::string_view afterAnother = "It was not looked at, as \"%1\" is not in order.";
constexpr std::string_view serverNotOpened = "The server can't be opened: %1.";
constexpr std::string_view noServer = "No Orvan server is installed on this computer.";
constexpr std::string_view noValue = "The registry has no value %1 in the key %2.";
constexpr std::string_view unreadValue = "The value %1 in the registry's key %2 can't be used.";
constexpr std::string_view noKey = "The registry has no key %1.";
constexpr std::string_view emptyKey = "The registry's key %1 has no keys below it.";
constexpr std::string_view noFolder = "The folder %1 is not there.";
constexpr std::string_view unlistedFolder = "The folder %1 can't be listed: %2.";
constexpr std::string_view noVersion =
    "The registry has no version of the server; its log lines are read without thread, port and "
    "call id.";
constexpr std::string_view processNames = "Processes: %1.";
constexpr std::string_view names = "In the registry: %1.";
constexpr std::string_view databaseNotOpened = "The database can't be opened: %1.";
constexpr std::string_view noDatabaseFile = "There is no database %1.";
constexpr std::string_view noView = "The database has no view %1.";
constexpr std::string_view unreadView = "The view %1 can't be read: %2.";
constexpr std::string_view badRows = "The view %1 has rows that can't be used, the first of %2.";
constexpr std::string_view emptyView = "The view %1 has no row.";
constexpr std::string_view noSetting = "The view %1 has no usable value %2.";
constexpr std::string_view components = "Components: %1.";
constexpr std::string_view noProcedure = "The database has no procedure %1.";
constexpr std::string_view noParameter = "The procedure %1 has no parameter %2.";
constexpr std::string_view deadProcedure =
    "A call of the procedure %1 changes nothing: its view has no trigger that takes it.";
constexpr std::string_view noFile = "The file %1 is not there.";
constexpr std::string_view unreadFile = "The file %1 can't be read: %2.";
constexpr std::string_view badXml = "The file %1 is not sound XML.";
constexpr std::string_view emptyCatalogue = "The file %1 tells of no component.";
constexpr std::string_view notInCatalogue = "Without texts for their levels: %1.";
constexpr std::string_view noDefinitions = "There is no macro trace definition in %1.";
constexpr std::string_view badDefinitions = "These files are no macro trace definitions: %1.";
constexpr std::string_view macroTraces = "Macro traces: %1.";
constexpr std::string_view notInGrid = "Macro traces name components that are not there: %1.";
constexpr std::string_view logFiles = "%1, log files: %2.";
constexpr std::string_view noCurrentLogs = "Processes without a current log that can be read: %1.";
constexpr std::string_view noReporter = "The server's event reporter can't be started: %1.";
constexpr std::string_view mayChange = "Nothing stands against it, as far as can be told.";
constexpr std::string_view mayNotChange =
    "This user may not change it: logs can be read and gathered, no more.";
constexpr std::string_view serverDecides = "What this user may change there, the server decides.";
constexpr std::string_view mayNotWrite = "This user may not write to %1.";
constexpr std::string_view freeSpace = "Free on %1: %2 MB.";
constexpr std::string_view littleSpace = "There are only %2 MB free on %1.";
constexpr std::string_view noTable = "The file %1 has no table %2.";
constexpr std::string_view notStarted = "The program %1 would not be started: %2.";
constexpr std::string_view noViewer = "The registry names no viewer.";
constexpr std::string_view noLanguages = "No texts in other languages lie beside the tool.";
constexpr std::string_view badLanguages = "Texts of these languages can't be read: %1.";
constexpr std::string_view noOwnLanguage =
    "There are no texts in the language %1; the tool speaks English.";
constexpr std::string_view languageCodes = "Languages: %1.";

// What to do.
constexpr std::string_view nameASite =
    "Name the folder of a site, or make a sample server to try things on.";
constexpr std::string_view mendTheFile = "Mend the file, or take a new copy of the server.";
constexpr std::string_view letRead = "Let this user read it.";
constexpr std::string_view goToServer =
    "Run the tool on the server itself, or on a copy of one in a folder.";
constexpr std::string_view mendRegistry =
    "Export the key from the server's registry, or repair the server's installation.";
constexpr std::string_view copyFolder = "Copy the folder from the server, or correct the registry.";
constexpr std::string_view restoreDatabase = "Put the server's database there.";
constexpr std::string_view reachDatabase =
    "See that the database's server runs, that no program keeps the database for itself, and that "
    "this user may read it.";
constexpr std::string_view mendDatabase =
    "Take a new copy of the database, or repair it on the server.";
constexpr std::string_view copyCatalogue =
    "Copy the folder GuiResources from a server of the same version.";
constexpr std::string_view copyDefinitions =
    "Put sound definitions (HT*.xml) there, or install the tool again.";
constexpr std::string_view definitionsOfVersion =
    "Take the definitions that belong to the server's version.";
constexpr std::string_view startLogs =
    "Let the server start new log files, or copy its logs once more.";
constexpr std::string_view repairServer = "Repair the server's installation.";
constexpr std::string_view runAsAdministrator =
    "Work as a user who may write there, or on a copy of the server.";
constexpr std::string_view makeRoom = "Make room there before logs are gathered or traces go on.";
constexpr std::string_view installTool = "Install the tool again.";
constexpr std::string_view useOwnViewer =
    "Open what was gathered with the viewer of this machine instead.";

/// Each of them once.
constexpr std::string_view all[] = {
    server,
    serverFolder,
    version,
    logFolderName,
    processes,
    signals,
    eventLogs,
    eventSources,
    database,
    flags,
    changeFlags,
    settings,
    changeSettings,
    catalogue,
    catalogueComponents,
    definitions,
    definitionComponents,
    logFolder,
    currentLogs,
    eventReporter,
    rights,
    databaseRights,
    toolLog,
    space,
    blankDatabase,
    cabinetMaker,
    viewer,
    languages,
    plain,
    canBeRead,
    canBeStarted,
    notLookedAt,
    afterServer,
    afterDatabase,
    afterAnother,
    serverNotOpened,
    noServer,
    noValue,
    unreadValue,
    noKey,
    emptyKey,
    noFolder,
    unlistedFolder,
    noVersion,
    processNames,
    names,
    databaseNotOpened,
    noDatabaseFile,
    noView,
    unreadView,
    badRows,
    emptyView,
    noSetting,
    components,
    noProcedure,
    noParameter,
    deadProcedure,
    noFile,
    unreadFile,
    badXml,
    emptyCatalogue,
    notInCatalogue,
    noDefinitions,
    badDefinitions,
    macroTraces,
    notInGrid,
    logFiles,
    noCurrentLogs,
    noReporter,
    mayChange,
    mayNotChange,
    serverDecides,
    mayNotWrite,
    freeSpace,
    littleSpace,
    noTable,
    notStarted,
    noViewer,
    noLanguages,
    badLanguages,
    noOwnLanguage,
    languageCodes,
    nameASite,
    mendTheFile,
    letRead,
    goToServer,
    mendRegistry,
    copyFolder,
    restoreDatabase,
    reachDatabase,
    mendDatabase,
    copyCatalogue,
    copyDefinitions,
    definitionsOfVersion,
    startLogs,
    repairServer,
    runAsAdministrator,
    makeRoom,
    installTool,
    useOwnViewer,
};

} // namespace healthSentences
