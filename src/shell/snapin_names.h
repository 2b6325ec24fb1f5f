#pragma once

/// The names that the snap-in's definition gives to what it declares. The console, and a host that
/// presses a task or an item by itself, know them by these.

/// The views of the result pane.
namespace snapinView {
constexpr const char* taskPad = "taskpadDefault";
constexpr const char* logFiles = "listviewAllLogs";
constexpr const char* logLines = "listviewDiagLog";
constexpr const char* processes = "listviewAllProcesses";
} // namespace snapinView

/// The types of scope nodes.
namespace snapinNode {
constexpr const char* root = "snapinOrvanDiagnostics";
constexpr const char* processes = "Processes";
constexpr const char* process = "nodeProcesses"; ///< also the one above logs opened by hand
constexpr const char* log = "nodeLogs";
} // namespace snapinNode

/// The pictures beside the nodes. A host has a drawing of each of these names.
namespace snapinImage {
constexpr const char* root = "console";
constexpr const char* processes = "processes";
constexpr const char* process = "process";
constexpr const char* log = "log";
constexpr const char* logInUse = "log-current";
} // namespace snapinImage

namespace snapinMenu {
constexpr const char* task = "mnuTask";
constexpr const char* main = "mnuMain";
} // namespace snapinMenu

/// The items of the two menus; the last two are the main menu's.
namespace snapinItem {
constexpr const char* configureMacroTrace = "mnuConfigureMacroTrace";
constexpr const char* configureMicroTraces = "mnuConfigureMicroTraces";
constexpr const char* disableAllTraces = "mnuDisableAllTraces";
constexpr const char* startNewLogFiles = "mnuStartNewLogFiles";
constexpr const char* gatherLogFiles = "mnuGatherLogFiles";
constexpr const char* configureLogSettings = "mnuConfigureLogSettings";
constexpr const char* openLogFile = "mnuOpenLogFile";
constexpr const char* changeLanguage = "mnuChangeLanguage";
} // namespace snapinItem

/// The keys of the tasks on the root's task pad, in its order.
namespace snapinTask {
constexpr const char* configureMacroTrace = "1";
constexpr const char* configureMicroTraces = "2";
constexpr const char* disableAllTraces = "3";
constexpr const char* startNewLogFiles = "4";
constexpr const char* gatherLogFiles = "5";
constexpr const char* configureLogSettings = "6";
} // namespace snapinTask
