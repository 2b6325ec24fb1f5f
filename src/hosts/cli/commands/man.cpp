#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual/manual_page.h"
#include "hosts/cli/terminal/output.h"

namespace cli {

namespace {

/// For the build, which installs what it prints.
class ManCommand final : public Command {
public:
    std::string name() const override { return "man"; }

    std::string summary() const override { return "Print the manual page"; }

    bool hidden() const override { return true; }

    bool takesSettings() const override { return false; }

    void declare(Arguments& arguments) override { arguments_ = arguments; }

    void run(const GlobalOptions&, Output& output) override
    {
        const std::string page = manualPage(describeCommands(arguments_.program()));
        if (output.json())
            output.value({{"page", page}});
        else
            output.text(page);
    }

private:
    Arguments arguments_;
};

} // namespace

std::unique_ptr<Command> makeManCommand()
{
    return std::make_unique<ManCommand>();
}

} // namespace cli
