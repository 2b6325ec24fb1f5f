#pragma once

#include "controls/tree_view.h"
#include "core/registry_store.h"
#include "core/utility.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

/// One row of a selection tree: a root, or a child of the latest root with its tick.
struct Choice {
    bool root = false;
    std::string text;
    bool ticked = false;
};

/// A started tool on a server with an open directory database.
struct TracesTest : testing::Test {
    using Texts = std::vector<std::string>;

    TestTool tool;

    TracesTest()
    {
        tool.context.g_strMacroTraceFolder = "C:\\OrvanDiagnostics\\ZMKXML";
        tool.files.withFolder(tool.context.g_strMacroTraceFolder);
        tool.registry.withKey(broadcastKey());
        tool.database.opened().withEmptyGrid();
        initBitMasks(tool.context);
    }

    static std::string broadcastKey() { return std::string(logManagerKey) + "\\BroadCast"; }

    static std::string recordKey(const std::string& group, const std::string& trace)
    {
        return std::string(toolKey) + "\\" + group + "\\" + trace;
    }

    void withFile(const std::string& name, const std::string& content)
    {
        tool.files.with(tool.context.g_strMacroTraceFolder + "\\" + name, content);
    }

    void recorded(const std::string& group, const std::string& trace, std::int32_t enabled)
    {
        tool.registry.withNumber(recordKey(group, trace), "Enabled", enabled);
    }

    std::int32_t enabledRecord(const std::string& group, const std::string& trace) const
    {
        return tool.registry.number(recordKey(group, trace), "Enabled");
    }

    /// How often the log manager was told that flags changed.
    int signalsSent() const
    {
        int count = 0;
        for (const auto& value : tool.registry.written())
            if (value == broadcastKey() + "\\Diagnostic Grid Time Set") ++count;
        return count;
    }

    /// Flag words written with `@Name`, which the closing default flags go without, as "name=word".
    Texts wordsSet() const
    {
        Texts words;
        for (const auto& call : tool.database.calls())
            if (call.parameters.count("@Name") > 0)
                words.push_back(valueAsText(call.parameters.at("@Name")) + "=" +
                                valueAsText(call.parameters.at("@Flags")));
        return words;
    }

    /// Identities whose default flags were written back, in their order.
    Texts defaultsRestored() const
    {
        Texts ids;
        for (const auto& call : tool.database.calls())
            if (call.parameters.count("@Name") == 0)
                ids.push_back(valueAsText(call.parameters.at("@ObjectId")));
        return ids;
    }

    std::int32_t flags(const std::string& component) const
    {
        return tool.database.flagsOf(component);
    }

    /// Reports as "id insert"; every one is of type 10 with one insert.
    Texts events() const
    {
        Texts texts;
        for (const auto& report : tool.eventReporter.reports()) {
            EXPECT_EQ(10, report.type);
            EXPECT_EQ("OrvanDiagnosticTool_MC", report.source);
            EXPECT_EQ(1u, report.inserts.size());
            texts.push_back(std::to_string(report.id) + " " + report.inserts.front());
        }
        return texts;
    }
};

inline void fillTree(TreeView& tree, const std::vector<Choice>& choices)
{
    TreeNode* root = nullptr;
    for (const auto& choice : choices) {
        TreeNode& node = choice.root ? tree.add(choice.text) : tree.addChild(*root, choice.text);
        node.setChecked(choice.ticked);
        if (choice.root) root = &node;
    }
}

inline std::string notInGrid(const std::string& name)
{
    return "Could not find the component: " + name +
           " in vw_LoggerDiagnosticGrid.  Diagnostics will not be set for this non-existent "
           "component.";
}

constexpr const char* notSet =
    "Err.Number = 91 Err.Description = Object variable or With block variable not set";
constexpr const char* outOfRange = "Err.Number = 9 Err.Description = Subscript out of range";
