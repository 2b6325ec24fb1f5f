#include "hosts/cli/commands/commands.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/output.h"
#include "runtime/text.h"

#include <CLI/CLI.hpp>

namespace {

class AboutCommand final : public Command {
public:
    std::string name() const override { return "about"; }

    std::string summary() const override { return "Show the tool's name, version and notices"; }

    void declare(CLI::App&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options);
        const SnapInIdentity identity = tool.console().identity();
        const std::string name = tool.console().displayName();
        tool.close();
        if (output.json()) {
            output.value({{"name", name},
                          {"version", identity.version},
                          {"provider", identity.provider},
                          {"description", identity.description}});
            return;
        }
        output.line(name);
        output.line("Version:" + identity.version);
        output.line(identity.provider);
        output.line(replaceAll(identity.description, lineBreak, "\n"));
    }
};

} // namespace

std::unique_ptr<Command> makeAboutCommand()
{
    return std::make_unique<AboutCommand>();
}
