#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/flag_words.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "platform/database.h"

namespace cli {

namespace {

CommandFailure noSuchComponent(const std::string& component)
{
    return CommandFailure("no component " + component + " in the diagnostic grid");
}

class FlagsCommand final : public Command {
public:
    std::string name() const override { return "flags"; }

    std::string summary() const override { return "Show the trace flag words as stored"; }

    void declare(Arguments& arguments) override
    {
        arguments.add("COMPONENT", component_, "one component instead of all");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look, [this](OpenTool& opened) {
            if (!component_.empty() && !knownNames::hasComponent(opened, component_))
                throw noSuchComponent(component_);
        });
        tool.requireDatabase();
        auto words = readFlagWords(tool.context().g_connection);
        if (!component_.empty())
            std::erase_if(words, [this](const FlagWords& word) { return word.name != component_; });
        tool.close();
        if (!component_.empty() && words.empty()) throw noSuchComponent(component_);
        if (output.json())
            printJson(output, words);
        else
            printTable(output, words);
    }

private:
    static void printJson(Output& output, const std::vector<FlagWords>& words)
    {
        Json all = Json::array();
        for (const auto& word : words)
            all.push_back({{"name", word.name},
                           {"objectId", word.objectId},
                           {"flags", word.flags},
                           {"defaultFlags", word.defaultFlags}});
        output.value(all);
    }

    static void printTable(Output& output, const std::vector<FlagWords>& words)
    {
        Table table({"Component", "Flags", "Default", "Object"});
        for (const auto& word : words)
            table.row({word.name, hexadecimal(word.flags), hexadecimal(word.defaultFlags),
                       word.objectId});
        output.text(table.text());
    }

    std::string component_;
};

} // namespace

std::unique_ptr<Command> makeFlagsCommand()
{
    return std::make_unique<FlagsCommand>();
}

} // namespace cli
