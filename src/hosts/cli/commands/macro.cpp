#include "controls/controls.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/driving/trace_check.h"
#include "hosts/cli/driving/trace_choice.h"
#include "hosts/cli/driving/wizard_driver.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "platform/xml.h"
#include "runtime/text.h"
#include "shell/snapin_names.h"

#include <functional>

namespace cli {

namespace {

struct MacroTrace {
    std::string group;
    std::string trace;
    std::string description;
    bool enabled;
};

std::vector<MacroTrace> shownMacroTraces(const XmlDocument& catalogue)
{
    std::vector<MacroTrace> traces;
    for (const auto& shown : knownNames::shownTraces(catalogue)) {
        const auto description = shown.element->selectSingleNode("DESCRIPTION");
        traces.push_back({shown.group, shown.trace, description ? description->text() : "",
                          shown.element->attribute("Enabled") == "1"});
    }
    return traces;
}

CommandFailure noSuchMacroTrace(const std::string& wanted,
                                const std::vector<std::string>& known = {})
{
    return CommandFailure("no macro trace \"" + wanted + "\"" +
                          didYouMean(wanted, known, "; orvandiag macro lists them"));
}

/// The macro trace of "GROUP - TRACE". Raises CommandFailure for one that the wizard does not show.
TreeNode& macroTraceNode(const TreeView& tree, const std::string& wanted)
{
    for (const TreeNode* group : tree.roots())
        for (TreeNode* trace = group->child(); trace; trace = trace->next())
            if (group->text() + " - " + trace->text() == wanted) return *trace;
    throw noSuchMacroTrace(wanted);
}

/// A text of the tool, with its line breaks; a lone line feed stands in somebody's name.
void printLines(Output& output, std::string_view text)
{
    for (auto end = text.find(lineBreak); end != text.npos; end = text.find(lineBreak)) {
        output.line(text.substr(0, end));
        text.remove_prefix(end + lineBreak.size());
    }
    output.line(text);
}

class MacroCommand final : public Command {
public:
    std::string name() const override { return "macro"; }

    std::string summary() const override
    {
        return "List the macro traces, or turn them on and off";
    }

    std::string explanation() const override
    {
        return "A macro trace is a named bundle of trace levels. Turning one off flips its "
               "levels;\n"
               "levels that another enabled macro trace needs, and default levels, come back.\n\n"
               "  orvandiag macro\n"
               "  orvandiag macro set --on \"Call Flow - Transfers\"";
    }

    void declare(Arguments& arguments) override
    {
        set_ = arguments.addCommand("set", "Turn macro traces on and off");
        set_.add("--on", choice_.on, "turn on, as in \"GROUP - TRACE\"")
            .called("NAME")
            .completes(Values::macroTraces);
        set_.add("--off", choice_.off, "turn off").called("NAME").completes(Values::macroTraces);
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        if (set_.given() && choice_.empty())
            throw UsageError("macro set needs an --on or an --off");
        OpenTool tool(options, set_.given() ? ToolUse::change : ToolUse::look,
                      [&](OpenTool& opened) { requireMacroTraces(opened, output); });
        if (set_.given())
            set(tool, output);
        else
            list(tool, output);
    }

private:
    /// Raises CommandFailure for a macro trace that this server does not have, UsageError where one
    /// is to be turned on and off. Writes their names as the wizard shows them.
    void requireMacroTraces(OpenTool& tool, Output& output)
    {
        const auto traces = knownNames::macroTraces(tool.context());
        for (const auto& file : traces.passedOver)
            output.message(file + " is passed over: it is no definition of macro traces");
        if (!set_.given()) return;
        choice_.forEach([&](std::string& name) {
            const auto known = matchingName(name, traces.shown);
            if (!known) throw noSuchMacroTrace(name, traces.shown);
            name = *known;
        });
        if (const std::string* both = choice_.contradiction(std::equal_to<std::string>()))
            throw UsageError("\"" + *both + "\" is to be turned on and off");
    }

    static void list(OpenTool& tool, Output& output)
    {
        std::vector<MacroTrace> traces;
        if (tool.context().g_domMacroTraces)
            traces = shownMacroTraces(*tool.context().g_domMacroTraces);
        tool.close();
        if (output.json()) {
            Json all = Json::array();
            for (const auto& trace : traces)
                all.push_back({{"group", trace.group},
                               {"trace", trace.trace},
                               {"description", trace.description},
                               {"enabled", trace.enabled}});
            output.value(all);
            return;
        }
        Table table({"On", "Macro trace", "Description"});
        for (const auto& trace : traces)
            table.row({trace.enabled ? "x" : "", trace.group + " - " + trace.trace,
                       std::string(trim(trace.description))});
        output.text(table.text());
    }

    void set(OpenTool& tool, Output& output) const
    {
        std::string summary;
        TraceCheck check(tool);
        {
            WizardDriver wizard(tool, snapinTask::configureMacroTrace);
            wizard.next();
            auto& tree = wizard.control<TreeView>("treeviewMacroTrace");
            choice_.make(wizard, tree, macroTraceNode);
            check.expect(expectedOfMacroTraces(tool.context(), tree, check.present()));
            wizard.next();
            summary = wizard.control<Label>("lblSummary").caption();
            wizard.finish();
        }
        check.requireSuccess();
        tool.close();
        if (output.json())
            output.value({{"summary", summary}});
        else
            printLines(output, summary);
    }

    Arguments set_;
    TraceChoice<std::string> choice_;
};

} // namespace

std::unique_ptr<Command> makeMacroCommand()
{
    return std::make_unique<MacroCommand>();
}

} // namespace cli
