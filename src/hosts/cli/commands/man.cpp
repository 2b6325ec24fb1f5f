#include "hosts/cli/commands/commands.h"
#include "hosts/cli/manual_page.h"
#include "hosts/cli/output.h"

#include <CLI/CLI.hpp>

namespace {

/// For the build, which installs what it prints.
class ManCommand final : public Command {
public:
    std::string name() const override { return "man"; }

    std::string summary() const override { return "Print the manual page"; }

    bool hidden() const override { return true; }

    void declare(CLI::App& app) override { program_ = app.get_parent(); }

    void run(const GlobalOptions&, Output& output) override
    {
        const std::string page = manualPage(describeCommands(*program_));
        if (output.json())
            output.value({{"page", page}});
        else
            output.text(page);
    }

private:
    const CLI::App* program_ = nullptr;
};

} // namespace

std::unique_ptr<Command> makeManCommand()
{
    return std::make_unique<ManCommand>();
}
