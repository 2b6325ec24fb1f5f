#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/completion_script.h"
#include "hosts/cli/terminal/output.h"

namespace cli {

namespace {

class CompletionCommand final : public Command {
public:
    std::string name() const override { return "completion"; }

    std::string summary() const override { return "Print a script that completes commands"; }

    std::string explanation() const override
    {
        return "For this shell, or for all that are started later:\n\n"
               "  source <(orvandiag completion bash)\n"
               "  orvandiag completion bash > \\\n"
               "      ~/.local/share/bash-completion/completions/orvandiag";
    }

    bool takesSettings() const override { return false; }

    void declare(Arguments& arguments) override
    {
        arguments_ = arguments;
        arguments.requireCommand();
        arguments.addCommand("bash", "The script for bash");
    }

    void run(const GlobalOptions&, Output& output) override
    {
        const std::string script = bashCompletion(describeCommands(arguments_.program()));
        if (output.json())
            output.value({{"script", script}});
        else
            output.text(script);
    }

private:
    Arguments arguments_;
};

} // namespace

std::unique_ptr<Command> makeCompletionCommand()
{
    return std::make_unique<CompletionCommand>();
}

} // namespace cli
