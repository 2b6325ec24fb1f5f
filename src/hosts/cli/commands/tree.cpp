#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/log_folder.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"

namespace cli {

namespace {

/// Opens a node and all below it.
void expandAll(Console& console, ScopeItem& item)
{
    console.expand(item);
    for (std::size_t i = 0; i < item.children().size(); ++i)
        expandAll(console, *item.children()[i]);
}

Json jsonOf(const ScopeItem& item)
{
    Json children = Json::array();
    for (const ScopeItem* child : item.children()) children.push_back(jsonOf(*child));
    return {{"key", item.key()},
            {"name", item.displayName()},
            {"kind", item.kind()},
            {"children", std::move(children)}};
}

void print(Output& output, const ScopeItem& item, const std::string& indent)
{
    output.line(indent + item.displayName());
    for (const ScopeItem* child : item.children()) print(output, *child, indent + "  ");
}

class TreeCommand final : public Command {
public:
    std::string name() const override { return "tree"; }

    std::string summary() const override { return "Show the tree of processes and their logs"; }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look);
        ScopeItem& root = tool.console().scopeItems().item(1);
        expandAll(tool.console(), root);
        if (output.json())
            output.value(Json::array({jsonOf(root)}));
        else
            print(output, root, "");
        const std::string trouble = logFolderClause(tool);
        tool.close();
        if (!trouble.empty()) output.message(trouble);
    }
};

} // namespace

std::unique_ptr<Command> makeTreeCommand()
{
    return std::make_unique<TreeCommand>();
}

} // namespace cli
