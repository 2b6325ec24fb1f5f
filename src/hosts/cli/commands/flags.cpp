#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/flag_words.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "platform/database.h"
#include "runtime/text.h"

namespace cli {

namespace {

/// One of the components in its own letters. Raises CommandFailure for none of them.
std::string componentNamed(const std::string& typed, const std::vector<std::string>& components)
{
    if (const auto name = matchingName(typed, components)) return *name;
    throw CommandFailure("no component " + typed + " in the diagnostic grid" +
                         didYouMean(typed, components, "; orvandiag flags lists them"));
}

class FlagsCommand final : public Command {
public:
    std::string name() const override { return "flags"; }

    std::string summary() const override { return "Show the trace flag words as stored"; }

    void declare(Arguments& arguments) override
    {
        arguments.add("COMPONENT", component_, "one component instead of all")
            .completes(Values::components);
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look, [this](OpenTool& opened) {
            if (component_.empty()) return;
            if (const auto known = knownNames::components(opened))
                component_ = componentNamed(component_, *known);
        });
        tool.requireDatabase();
        auto words = readFlagWords(tool.context().g_connection);
        tool.close();
        if (!component_.empty()) keepComponent(words);
        if (output.json())
            printJson(output, words);
        else
            printTable(output, words);
    }

private:
    void keepComponent(std::vector<FlagWords>& words) const
    {
        std::vector<std::string> names;
        for (const FlagWords& word : words) names.emplace_back(trim(word.name));
        const std::string component = componentNamed(component_, names);
        std::erase_if(words, [&](const FlagWords& word) { return trim(word.name) != component; });
    }

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
