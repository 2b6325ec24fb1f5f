#include "shell/snapin_definition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

const ListViewDefinition& listView(const SnapInDefinition& definition, const std::string& name)
{
    return *std::find_if(definition.listViews.begin(), definition.listViews.end(),
                         [&](const auto& view) { return view.name == name; });
}

void expectColumns(const std::vector<ColumnDefinition>& expected, const ListViewDefinition& view)
{
    ASSERT_EQ(expected.size(), view.columns.size());
    for (std::size_t column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(expected[column].key, view.columns[column].key);
        EXPECT_EQ(expected[column].header, view.columns[column].header);
        EXPECT_EQ(expected[column].width, view.columns[column].width);
    }
}

} // namespace

TEST(SnapinDefinition, NamesAViewForEachNodeType)
{
    struct Case {
        const char* typeName;
        const char* displayName;
        const char* view;
    };
    const Case cases[] = {
        {"snapinOrvanDiagnostics", "Kelma Orvan Diagnostic Tool", "taskpadDefault"},
        {"Processes", "Processes*", "listviewAllProcesses"},
        {"nodeProcesses", "nodeProcesses", "listviewAllLogs"},
        {"nodeLogs", "nodeLogs", "listviewDiagLog"},
    };
    const auto definition = snapinDefinition();
    ASSERT_EQ(std::size(cases), definition.nodeTypes.size());
    for (std::size_t type = 0; type < std::size(cases); ++type) {
        EXPECT_EQ(cases[type].typeName, definition.nodeTypes[type].typeName);
        EXPECT_EQ(cases[type].displayName, definition.nodeTypes[type].displayName);
        EXPECT_EQ(cases[type].view, definition.nodeTypes[type].defaultView);
    }
}

TEST(SnapinDefinition, GivesEachNodeTypeAPictureAndLetsNothingBelowALog)
{
    std::set<std::string> images;
    const auto definition = snapinDefinition();
    for (const auto& type : definition.nodeTypes) {
        EXPECT_NE("", type.image);
        images.insert(type.image);
        EXPECT_EQ(type.typeName != "nodeLogs", type.opens);
    }
    EXPECT_EQ(definition.nodeTypes.size(), images.size());
}

TEST(SnapinDefinition, HasNoRowsOfTheProcessesButTheirNodes)
{
    for (const auto& view : snapinDefinition().listViews)
        EXPECT_EQ(view.name == "listviewAllProcesses" ? ListRows::childNodes : ListRows::own,
                  view.rows);
}

TEST(SnapinDefinition, HasTheProcessesNodeMadeWithTheRoot)
{
    const auto definition = snapinDefinition();
    ASSERT_EQ(1u, definition.automaticNodes.size());
    EXPECT_EQ("Processes", definition.automaticNodes[0].typeName);
    EXPECT_EQ("Processes", definition.automaticNodes[0].kind);
}

TEST(SnapinDefinition, ShowsLogLinesAsBytesInTheOrderOfTheirNumber)
{
    const auto definition = snapinDefinition();
    const auto& view = listView(definition, "listviewDiagLog");

    EXPECT_EQ(ListDisplay::report, view.display);
    EXPECT_EQ(ListText::serverCodePage, view.text);
    EXPECT_TRUE(view.sort.onLoad);
    EXPECT_EQ(1, view.sort.column);
    EXPECT_TRUE(view.sort.ascending);
    EXPECT_EQ(1000, view.filterChangeTimeOut);

    const std::vector<ColumnDefinition> expected = {
        {"keyNumber", "#", 50},
        {"keyTimeStamp", "Timestamp*", 150},
        {"keySource", "Source*", 100},
        {"keyTraceNo", "Trace No.*", 50},
        {"keyComponent", "Component*", 80},
        {"keyLevel", "Level*", 30},
        {"keyTrace", "Trace*", 400},
    };
    expectColumns(expected, view);
}

TEST(SnapinDefinition, ShowsTheNewestLogFileFirst)
{
    const auto definition = snapinDefinition();
    const auto& view = listView(definition, "listviewAllLogs");

    EXPECT_EQ(ListDisplay::report, view.display);
    EXPECT_EQ(ListText::utf8, view.text);
    EXPECT_TRUE(view.sort.onLoad);
    EXPECT_EQ(3, view.sort.column);
    EXPECT_FALSE(view.sort.ascending);

    const std::vector<ColumnDefinition> expected = {
        {"", " ", 25},
        {"", "Current*", 75},
        {"keyFileName", "File Name*", 200},
        {"keyTimestamp", "Time Stamp*", 175},
        {"keySize", "Size (Bytes)*", automaticWidth},
    };
    expectColumns(expected, view);
}

TEST(SnapinDefinition, ListsProcessesUnsorted)
{
    const auto definition = snapinDefinition();
    const auto& view = listView(definition, "listviewAllProcesses");

    EXPECT_FALSE(view.sort.onLoad);
    EXPECT_EQ(ListDisplay::byDefault, view.display);
    ASSERT_EQ(1u, view.columns.size());
    EXPECT_EQ("keyProcess", view.columns[0].key);
    EXPECT_EQ("Process*", view.columns[0].header);
}

TEST(SnapinDefinition, HasSixTasksWithTheSymbolsOfTheirDesign)
{
    const auto definition = snapinDefinition();
    ASSERT_EQ(1u, definition.taskPads.size());
    const TaskPadDefinition& pad = definition.taskPads[0];

    EXPECT_EQ("taskpadDefault", pad.name);
    EXPECT_EQ("Kelma Orvan Diagnostic Tasks*", pad.title);
    EXPECT_EQ("Common diagnostics tasks for Kelma Orvan*", pad.description);
    EXPECT_EQ("#2/bitmapRestart", pad.background);
    EXPECT_EQ("res://mmc.exe/glyph100.eot", pad.symbolFontFile);
    std::string keys;
    std::string symbols;
    for (const auto& task : pad.tasks) {
        keys += task.key;
        symbols += task.symbol;
    }
    EXPECT_EQ("123456", keys);
    EXPECT_EQ("MM$124", symbols);
    EXPECT_EQ("Disable All Traces*", pad.tasks[2].text);
    EXPECT_EQ("glyph 100", pad.tasks[2].fontFamily);
    EXPECT_EQ("Use this to Configure Log Settings", pad.tasks[5].helpText);
}

TEST(SnapinDefinition, DeclaresTheTaskMenuTheMainMenuAndAnEmptyToolbar)
{
    const auto definition = snapinDefinition();
    ASSERT_EQ(2u, definition.menus.size());

    const auto names = [](const MenuDefinition& menu) {
        std::vector<std::string> found;
        for (const auto& item : menu.items) found.push_back(item.name);
        return found;
    };
    EXPECT_EQ("mnuTask", definition.menus[0].name);
    EXPECT_EQ("Orvan Diag Tasks", definition.menus[0].caption);
    EXPECT_EQ((std::vector<std::string>{"mnuConfigureMacroTrace", "mnuConfigureMicroTraces",
                                        "mnuDisableAllTraces", "mnuStartNewLogFiles",
                                        "mnuGatherLogFiles", "mnuConfigureLogSettings"}),
              names(definition.menus[0]));
    std::vector<std::string> captions;
    for (const auto& item : definition.menus[0].items) captions.push_back(item.caption);
    EXPECT_EQ((std::vector<std::string>{"Enable Macro Trace*", "Configure Micro Traces*",
                                        "Disable All Traces*", "Start New Log Files*",
                                        "Gather Log Files*", "Configure Log Settings*"}),
              captions);
    EXPECT_EQ("mnuMain", definition.menus[1].name);
    EXPECT_EQ("", definition.menus[1].caption);
    EXPECT_EQ((std::vector<std::string>{"mnuOpenLogFile", "mnuChangeLanguage"}),
              names(definition.menus[1]));
    EXPECT_EQ("Open Log File", definition.menus[1].items[0].caption);
    EXPECT_EQ("", definition.menus[1].items[0].statusBarText);
    EXPECT_EQ((std::vector<std::string>{"tbrViewer"}), definition.toolbars);
}
