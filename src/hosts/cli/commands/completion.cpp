#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/completion_script.h"
#include "hosts/cli/terminal/output.h"

namespace cli {

namespace {

class CompletionCommand final : public Command {
public:
    std::string name() const override { return "completion"; }

    std::string summary() const override
    {
        return "Print a script that completes commands in a shell";
    }

    std::string explanation() const override
    {
        return "The script completes commands, options and values, such as the names of the "
               "server's logs, by asking the program. A package brings it along; elsewhere read "
               "it into a shell, or keep it for all that are started later: fish and zsh have "
               "folders for it, too.\n\n"
               "  source <(orvandiag completion bash)\n"
               "  orvandiag completion bash > \\\n"
               "      ~/.local/share/bash-completion/completions/orvandiag\n"
               "  orvandiag completion fish > ~/.config/fish/completions/orvandiag.fish";
    }

    bool takesSettings() const override { return false; }

    void declare(Arguments& arguments) override
    {
        arguments.requireCommand();
        for (Shell& shell : shells_)
            shell.arguments =
                arguments.addCommand(shell.name, std::string("Print the script for ") + shell.name);
    }

    void run(const GlobalOptions&, Output& output) override
    {
        for (const Shell& shell : shells_) {
            if (!shell.arguments.given()) continue;
            if (output.json())
                output.value({{"script", shell.script}});
            else
                output.text(shell.script);
        }
    }

private:
    struct Shell {
        const char* name;
        const char* script;
        Arguments arguments;
    };

    Shell shells_[3] = {
        {"bash", bashCompletion, {}}, {"fish", fishCompletion, {}}, {"zsh", zshCompletion, {}}};
};

} // namespace

std::unique_ptr<Command> makeCompletionCommand()
{
    return std::make_unique<CompletionCommand>();
}

} // namespace cli
