#pragma once

#include "console/recording_snap_in.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Texts = std::vector<std::string>;

inline SnapInDefinition smallDefinition()
{
    SnapInDefinition definition;
    definition.displayName = "Tool";
    definition.provider = "Provider";
    definition.nodeTypes = {{"tool", "Tool", "pad", "house"},
                            {"Machines", "Machines*", "machines"},
                            {"nodeMachine", "nodeMachine", "files", "box"},
                            {"nodeFile", "nodeFile", "files", "sheet", false}};
    definition.automaticNodes = {{"Machines", "Machines"}};
    ListViewDefinition machines;
    machines.name = "machines";
    machines.rows = ListRows::childNodes;
    machines.columns = {{"keyMachine", "Machine", automaticWidth}};
    ListViewDefinition files = machines;
    files.name = "files";
    files.rows = ListRows::own;
    files.sort = {true, 1, false};
    definition.listViews = {machines, files};
    TaskPadDefinition pad;
    pad.name = "pad";
    pad.background = "#2/nothing";
    pad.tasks = {{"1", "One", "font", 'M', "help"}, {"2", "Two", "font", 'M', "help"}};
    definition.taskPads = {pad};
    definition.menus = {{"mnuTask", "Tasks", {{"mnuOne", "One", "does one"}, {"mnuTwo", "", ""}}}};
    return definition;
}

struct ConsoleTest : testing::Test {
    SnapInDefinition definition = smallDefinition();
    Console console{definition};
    RecordingSnapIn snapIn;

    ConsoleTest()
    {
        snapIn.console = &console;
        console.addObserver(snapIn);
    }

    /// The root is on show, and nothing was heard yet.
    void load()
    {
        console.load(snapIn);
        view().select(root());
        snapIn.heard.clear();
    }

    ScopeItem& root() { return console.root(); }
    ScopeItem& add(const std::string& key, ScopeItem& parent)
    {
        return console.scopeItems().addChild("nodeMachine", key, parent);
    }
    View& view() { return console.currentView(); }
    std::string selected() { return view().selectedScopePaneItem().key(); }
};
