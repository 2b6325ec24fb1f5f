#pragma once

#include "core/registry_store.h"
#include "shell/snapin_definition.h"
#include "shell/snapin_orvan_diagnostics.h"
#include "support/test_tool.h"
#include "support/traced_pairs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Texts = std::vector<std::string>;

/// A snap-in in a console, on a server whose log folder is C:\Logs.
struct ShellTest : testing::Test {
    TestTool tool;
    SnapInDefinition definition = snapinDefinition();
    Console console{definition};
    snapinOrvanDiagnostics snapIn{tool.context, console};

    ShellTest()
    {
        tool.registry.withText(logManagerKey, "Output Path", "C:\\Logs")
            .withKey(std::string(logManagerKey) + "\\BroadCast");
        tool.files.withFolder("C:\\Logs");
    }

    /// Entries of routines that an error left; else none.
    Texts outOfPairs;

    /// Whatever a test does, each traced routine that was entered was left.
    void TearDown() override { EXPECT_EQ(outOfPairs, tracesOutOfPairs(tool)); }

    void load()
    {
        console.load(snapIn);
        view().select(console.root());
    }

    void withProcess(const std::string& process) { tool.registry.withKey(processKey(process)); }

    void withLog(const std::string& name, const std::string& content = "")
    {
        tool.files.with("C:\\Logs\\" + name, content);
    }

    void withCurrentLog(const std::string& process, const std::string& name,
                        const std::string& content = "")
    {
        withLog(name, content);
        tool.registry.withText(processKey(process), "CurrentLogFile", "C:\\Logs\\" + name);
    }

    static std::string processKey(const std::string& process)
    {
        return std::string(logManagerKey) + "\\Process\\" + process;
    }

    ScopeItem& node(const std::string& key) { return console.scopeItems().item(key); }
    ScopeItem& processes() { return console.scopeItems().item(2); }
    View& view() { return console.currentView(); }
    ListView& list() { return view().selectedScopePaneItem().resultView().list(); }
    std::string selected() { return view().selectedScopePaneItem().key(); }

    /// Display names of what lies below a node.
    static Texts below(const ScopeItem& item)
    {
        Texts names;
        for (const ScopeItem* child : item.children()) names.push_back(child->displayName());
        return names;
    }

    /// The cells of a row, by its place on the screen.
    Texts row(int place)
    {
        Texts cells;
        const ListItem item = list().shown(place);
        for (int index = 1; index <= item.subItemCount(); ++index)
            cells.emplace_back(item.subItem(index));
        return cells;
    }

    Texts column(int index)
    {
        Texts cells;
        for (int place = 1; place <= list().itemCount(); ++place)
            cells.emplace_back(list().shown(place).subItem(index));
        return cells;
    }

    Texts headers()
    {
        Texts texts;
        for (const auto& header : list().columns()) texts.push_back(header.text);
        return texts;
    }
};
