#include "hosts/cli/commands/commands.h"
#include "hosts/cli/known_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/output.h"
#include "platform/database.h"

#include <CLI/CLI.hpp>

namespace {

struct FlagWords {
    std::string name;
    std::string objectId;
    std::int32_t flags;
    std::int32_t defaultFlags;
};

CommandFailure noSuchComponent(const std::string& component)
{
    return CommandFailure("no component " + component + " in the diagnostic grid");
}

class FlagsCommand final : public Command {
public:
    std::string name() const override { return "flags"; }

    std::string summary() const override { return "Show the trace flag words as stored"; }

    void declare(CLI::App& app) override
    {
        app.add_option("COMPONENT", component_, "one component instead of all");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look, [this](OpenTool& opened) {
            if (!component_.empty() && !knownNames::hasComponent(opened, component_))
                throw noSuchComponent(component_);
        });
        tool.requireDatabase();
        const auto words = read(tool.context().g_connection);
        tool.close();
        if (!component_.empty() && words.empty()) throw noSuchComponent(component_);
        if (output.json())
            printJson(output, words);
        else
            printTable(output, words);
    }

private:
    std::vector<FlagWords> read(DatabaseConnection& connection) const
    {
        const auto rows = connection.openRecordset(
            "SELECT Name, ObjectId, Flags, DefaultFlags FROM vw_LoggerDiagnosticGrid ORDER BY Name",
            CursorKind::forwardOnly, LockKind::optimistic);
        std::vector<FlagWords> words;
        for (; !rows->atEnd(); rows->moveNext()) {
            const std::string name = valueAsText(rows->field("Name"));
            if (!component_.empty() && name != component_) continue;
            words.push_back({name, valueAsText(rows->field("ObjectId")),
                             valueAsInteger32(rows->field("Flags")),
                             valueAsInteger32(rows->field("DefaultFlags"))});
        }
        return words;
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
            table.row({word.name, hex(word.flags), hex(word.defaultFlags), word.objectId});
        output.text(table.text());
    }

    static std::string hex(std::int32_t word)
    {
        char text[12];
        std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(word));
        return text;
    }

    std::string component_;
};

} // namespace

std::unique_ptr<Command> makeFlagsCommand()
{
    return std::make_unique<FlagsCommand>();
}
