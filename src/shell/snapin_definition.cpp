#include "shell/snapin_definition.h"

#include "shell/scope_nodes.h"
#include "shell/snapin_names.h"

namespace {

ListViewDefinition diagLogView()
{
    ListViewDefinition view;
    view.name = snapinView::logLines;
    view.display = ListDisplay::report;
    view.sort = {true, 1, true};
    view.text = ListText::serverCodePage;
    view.columns = {{"keyNumber", "#", 50},
                    {"keyTimeStamp", "Timestamp*", 150},
                    {"keySource", "Source*", 100},
                    {"keyTraceNo", "Trace No.*", 50},
                    {"keyComponent", "Component*", 80},
                    {"keyLevel", "Level*", 30},
                    {"keyTrace", "Trace*", 400}};
    return view;
}

ListViewDefinition allLogsView()
{
    ListViewDefinition view;
    view.name = snapinView::logFiles;
    view.display = ListDisplay::report;
    view.sort = {true, 3, false};
    view.columns = {{"", " ", 25},
                    {"", "Current*", 75},
                    {"keyFileName", "File Name*", 200},
                    {"keyTimestamp", "Time Stamp*", 175},
                    {"keySize", "Size (Bytes)*", automaticWidth}};
    return view;
}

ListViewDefinition allProcessesView()
{
    ListViewDefinition view;
    view.name = snapinView::processes;
    view.rows = ListRows::childNodes;
    view.columns = {{"keyProcess", "Process*", automaticWidth}};
    return view;
}

TaskPadDefinition defaultTaskPad()
{
    TaskPadDefinition pad;
    pad.name = snapinView::taskPad;
    pad.title = "Kelma Orvan Diagnostic Tasks*";
    pad.description = "Common diagnostics tasks for Kelma Orvan*";
    pad.background = "#2/bitmapRestart";
    pad.symbolFontFile = "res://mmc.exe/glyph100.eot";
    pad.tasks = {
        {snapinTask::configureMacroTrace, "Configure Macro Traces*", "GLYPH 100", 'M',
         "Use this task to configure the macro traces*"},
        {snapinTask::configureMicroTraces, "Configure Micro Traces*", "GLYPH 100", 'M',
         "Use this task to configure individual component traces and levels.*"},
        {snapinTask::disableAllTraces, "Disable All Traces*", "glyph 100", '$',
         "Use this task to have Orvan disable all traces that are not normally enabled.*"},
        {snapinTask::startNewLogFiles, "Start New Log Files*", "GLYPH 100", '1',
         "Use this task to have Orvan close the current log files and start new ones.*"},
        {snapinTask::gatherLogFiles, "Gather Log Files*", "glyph 100", '2',
         "Use this task to easily gather all necessary log files for diagnosing problems.*"},
        {snapinTask::configureLogSettings, "Configure Log Settings*", "glyph 100", '4',
         "Use this to Configure Log Settings"},
    };
    return pad;
}

MenuDefinition taskMenu()
{
    return {snapinMenu::task,
            "Orvan Diag Tasks",
            {
                {snapinItem::configureMacroTrace, "Enable Macro Trace*",
                 "Allows one to enable a macro trace to help diagnose Orvan problems*"},
                {snapinItem::configureMicroTraces, "Configure Micro Traces*",
                 "Use this action to configure individual component traces and levels.*"},
                {snapinItem::disableAllTraces, "Disable All Traces*",
                 "Use this action to have Orvan disable all traces that are not normally "
                 "enabled.*"},
                {snapinItem::startNewLogFiles, "Start New Log Files*",
                 "Causes Orvan to close current log files and start new ones.*"},
                {snapinItem::gatherLogFiles, "Gather Log Files*",
                 "Use this action to easily gather all necessary log files for diagnosing "
                 "problems.*"},
                {snapinItem::configureLogSettings, "Configure Log Settings*",
                 "Use this action to configure various log settings*"},
            }};
}

MenuDefinition mainMenu()
{
    return {snapinMenu::main,
            "",
            {{snapinItem::openLogFile, "Open Log File", ""},
             {snapinItem::changeLanguage, "Change Orvan Event Log Language", ""}}};
}

} // namespace

SnapInDefinition snapinDefinition()
{
    SnapInDefinition definition;
    definition.displayName = "Kelma Orvan Diagnostic Tool";
    definition.description = "Kelma Orvan Diagnostic Tool MMC Snap-in";
    definition.provider = "Kelma Systems, Inc.";
    definition.version = "1.0";
    constexpr bool opens = true;
    definition.nodeTypes = {
        {snapinNode::root, "Kelma Orvan Diagnostic Tool", snapinView::taskPad, snapinImage::root,
         opens},
        {snapinNode::processes, processesPlaceholder, snapinView::processes, snapinImage::processes,
         opens},
        {snapinNode::process, "nodeProcesses", snapinView::logFiles, snapinImage::process, opens},
        {snapinNode::log, "nodeLogs", snapinView::logLines, snapinImage::log, !opens},
    };
    definition.automaticNodes = {{snapinNode::processes, mdlSnapIn::kindProcesses}};
    definition.listViews = {diagLogView(), allLogsView(), allProcessesView()};
    definition.taskPads = {defaultTaskPad()};
    definition.menus = {taskMenu(), mainMenu()};
    definition.toolbars = {"tbrViewer"};
    return definition;
}
