#include "hosts/cli/commands/commands.h"
#include "hosts/cli/completion_script.h"
#include "hosts/cli/output.h"

#include <CLI/CLI.hpp>

namespace {

class CompletionCommand final : public Command {
public:
    std::string name() const override { return "completion"; }

    std::string summary() const override { return "Print a script that completes commands"; }

    std::string explanation() const override
    {
        return "For this shell, or for all that are started later:\n\n"
               "  source <(orvandiag completion bash)\n"
               "  orvandiag completion bash > "
               "~/.local/share/bash-completion/completions/orvandiag";
    }

    void declare(CLI::App& app) override
    {
        program_ = app.get_parent();
        app.require_subcommand(1);
        app.add_subcommand("bash", "The script for bash");
    }

    void run(const GlobalOptions&, Output& output) override
    {
        const std::string script = bashCompletion(describeCommands(*program_));
        if (output.json())
            output.value({{"script", script}});
        else
            output.text(script);
    }

private:
    const CLI::App* program_ = nullptr;
};

} // namespace

std::unique_ptr<Command> makeCompletionCommand()
{
    return std::make_unique<CompletionCommand>();
}
