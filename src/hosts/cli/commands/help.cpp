#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/cli/usage/help_text.h"

namespace cli {

namespace {

class HelpCommand final : public Command {
public:
    std::string name() const override { return "help"; }

    std::string summary() const override { return "Show the help of the program or of a command"; }

    std::string explanation() const override
    {
        return "It is what --help behind the command shows.\n\n"
               "  orvandiag help\n"
               "  orvandiag help gather frame";
    }

    void declare(Arguments& arguments) override
    {
        arguments_ = arguments;
        arguments.add("COMMAND", command_, "the command; else the program")
            .completes(Values::commands);
    }

    void run(const GlobalOptions&, Output& output) override
    {
        const std::string text = helpOf(arguments_.program(), command_);
        if (output.json())
            output.value({{"help", text}});
        else
            output.text(text);
    }

private:
    Arguments arguments_;
    std::vector<std::string> command_;
};

} // namespace

std::unique_ptr<Command> makeHelpCommand()
{
    return std::make_unique<HelpCommand>();
}

} // namespace cli
