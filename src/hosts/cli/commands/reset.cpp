#include "controls/controls.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/trace_check.h"
#include "hosts/cli/driving/wizard_driver.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "shell/snapin_names.h"

namespace cli {

namespace {

class ResetCommand final : public Command {
public:
    std::string name() const override { return "reset"; }

    std::string summary() const override { return "Put all traces back to the default"; }

    std::string explanation() const override
    {
        return "Every level goes off but the ones that are on by default, and every macro trace "
               "that was\n"
               "ever switched is recorded as off.";
    }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::change);
        TraceCheck check(tool);
        {
            WizardDriver wizard(tool, snapinTask::disableAllTraces);
            wizard.control<CheckBox>("chkDisableAllTraces").click();
            check.expect(expectedOfReset(tool.context(), check.present()));
            wizard.finish();
        }
        check.requireSuccess();
        tool.close();
        const std::string summary = "All traces are back to the default.";
        if (output.json())
            output.value({{"summary", summary}});
        else
            output.line(summary);
    }
};

} // namespace

std::unique_ptr<Command> makeResetCommand()
{
    return std::make_unique<ResetCommand>();
}

} // namespace cli
